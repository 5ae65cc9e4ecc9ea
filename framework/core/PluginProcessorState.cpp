// The state chunk that the host keeps for an instance, and the presets it may start with.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/PluginProcessor.h"
#include "framework/core/Settings.h"
#include "framework/core/XmlReader.h"
#include "framework/core/XmlWriter.h"
#include "framework/midi/ParamsMidiMapper.h"
#include "framework/presets/PresetFileManager.h"
#include "framework/presets/PresetFolders.h"

namespace zembra
{

void PluginProcessor::setUpPresets()
{
    constexpr auto extension = ".ompreset";
    const PresetFolders folders (folderRoots, getCompanyName(), getName());
    folders.createAll();

    juce::FileSearchPath userFolders, midiUserFolders;
    userFolders.add (folders.user);
    midiUserFolders.add (folders.midiUser);

    presetFileManager =
        std::make_unique<PresetFileManager> (this, &paramSet, folders.factory, folders.designers,
                                             userFolders, extension, settings.get());
    midiPresetFileManager = std::make_unique<PresetFileManager> (
        this, paramsMidiMapper.get(), folders.midiFactory, juce::File(), midiUserFolders, extension,
        settings.get());
}

void PluginProcessor::takeDefaultsFromDefaultPreset()
{
    const auto path = settings->getDefaultPreset (paramSet.getName());

    if (! juce::File::isAbsolutePath (path)
        || ! presetFileManager->isValidPresetFile (juce::File (path)))
        return;

    if (const auto root = XmlReader::parse (juce::File (path)))
        if (const auto* values = root->getChildByName (paramSet.getName()))
            paramSet.setDefaultsFromXml (*values);
}

void PluginProcessor::unfreezeAll()
{
    for (int i = paramSet.getNumParams(); --i >= 0;)
        paramSet.getParam (i)->changeFrozen (false);
}

void PluginProcessor::getStateInformation (juce::MemoryBlock& destData)
{
    juce::XmlElement root (getName());
    root.setAttribute ("pluginEditorWidth", getPluginEditorWidth());
    root.setAttribute ("pluginEditorHeight", getPluginEditorHeight());
    root.setAttribute ("isMidiEnabled", isMidiEnabled() ? 1 : 0);
    root.setAttribute ("isMidiProgramChangeEnabled", isMidiProgramChangeEnabled() ? 1 : 0);
    root.setAttribute ("ccMidiChan", getMidiChannel());
    preferences.saveToParent (root);
    frozenStates.saveToParent (root);
    presetFileManager->writeStateTo (root);
    midiPresetFileManager->writeStateTo (root);
    XmlWriter::pack (root, destData);
}

void PluginProcessor::setStateInformation (const void* data, int sizeInBytes)
{
    const auto root = XmlReader::unpack (data, sizeInBytes);

    if (root == nullptr || ! root->getTagName().equalsIgnoreCase (getName()))
        return;

    setPluginEditorWidth (XmlReader::getInt (*root, "pluginEditorWidth", -1));
    setPluginEditorHeight (XmlReader::getInt (*root, "pluginEditorHeight", -1));
    setMidiEnabled (root->getBoolAttribute ("isMidiEnabled", false));
    setMidiProgramChangeEnabled (root->getBoolAttribute ("isMidiProgramChangeEnabled", false));
    setMidiChannel (XmlReader::getInt (*root, "ccMidiChan", 0));

    // First, since a frozen parameter would not take its value from the chunk.
    unfreezeAll();
    presetFileManager->loadStateFrom (root.get(), {});
    midiPresetFileManager->loadStateFrom (root.get(), {});
    preferences.loadFromParent (*root);
    frozenStates.loadFromParent (*root);
}

} // namespace zembra
