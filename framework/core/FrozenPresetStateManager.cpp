// Frozen marks to attributes and back.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/FrozenPresetStateManager.h"

namespace zembra
{

FrozenPresetStateManager::FrozenPresetStateManager (ParamSet& params)
    : PresetStateManager ("frozenParams"),
      paramSet (params)
{
}

void FrozenPresetStateManager::saveToXml (juce::XmlElement& element)
{
    for (const auto* param : paramSet)
        element.setAttribute (param->getId(), param->isFrozen() ? "1" : "0");
}

void FrozenPresetStateManager::loadFromXml (const juce::XmlElement& element)
{
    for (auto* param : paramSet)
        param->changeFrozen (element.getBoolAttribute (param->getId(), param->isFrozen()));
}

} // namespace zembra
