// The state chunk that the host keeps for an instance.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/PluginProcessor.h"

namespace zembra
{

void PluginProcessor::getStateInformation (juce::MemoryBlock& destData)
{
    juce::XmlElement root (getName());
    preferences.saveToParent (root);
    frozenStates.saveToParent (root);
    paramSet.saveToParent (root);
    copyXmlToBinary (root, destData);
}

void PluginProcessor::setStateInformation (const void* data, int sizeInBytes)
{
    const auto root = getXmlFromBinary (data, sizeInBytes);

    if (root == nullptr || ! root->getTagName().equalsIgnoreCase (getName()))
        return;

    // First, since a frozen parameter would not take its value from the chunk.
    for (int i = paramSet.getNumParams(); --i >= 0;)
        paramSet.getParam (i)->changeFrozen (false);

    paramSet.loadFromParent (*root);
    preferences.loadFromParent (*root);
    frozenStates.loadFromParent (*root);
}

} // namespace zembra
