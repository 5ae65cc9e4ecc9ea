// Loading and saving of presets and states.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/PluginProcessor.h"
#include "framework/core/XmlReader.h"
#include "framework/core/XmlWriter.h"
#include "framework/presets/LoadPresetFileAction.h"
#include "framework/presets/PresetFileManager.h"

namespace zembra
{

namespace
{

/** The file of a path from outside; an empty one for what names no place of its own. */
juce::File toFile (const juce::String& path)
{
    const auto isUsable = juce::File::isAbsolutePath (path) && ! path.startsWithChar ('~');
    return isUsable ? juce::File (path) : juce::File();
}

} // namespace

bool PresetFileManager::isToBeLoaded (const juce::File& file) const
{
    return isValidPresetFile (file)
           && (isDirty() || getCurrentPresetPath() != file.getFullPathName());
}

void PresetFileManager::loadPreset (const juce::File& file, juce::UndoManager* undoManager)
{
    if (undoManager == nullptr)
        return loadFile (file, Reference::followed);

    if (! isToBeLoaded (file))
        return;

    undoManager->beginNewTransaction();
    undoManager->perform (new LoadPresetFileAction (*this, file));
}

void PresetFileManager::loadFile (const juce::File& file, Reference reference)
{
    if (isToBeLoaded (file))
        if (const auto tree = XmlReader::parse (file))
            takeTree (*tree, file, reference);
}

bool PresetFileManager::loadStateFrom (const juce::XmlElement* xml, const juce::File& presetFile)
{
    return xml != nullptr && takeTree (*xml, presetFile, Reference::followed);
}

bool PresetFileManager::takeTree (const juce::XmlElement& xml, const juce::File& presetFile,
                                  Reference reference)
{
    if (const auto* loadedPreset = xml.getChildByName (getReferenceTag()))
        takeState (xml, *loadedPreset, reference);
    else if (! takeElements (xml))
        return false;

    setText (&PresetFileManager::description, getDescription (xml));
    setText (&PresetFileManager::author, getAuthor (xml));

    if (isValidPresetFile (presetFile))
        makeCurrent (presetFile);

    return true;
}

void PresetFileManager::takeState (const juce::XmlElement& xml,
                                   const juce::XmlElement& loadedPreset, Reference reference)
{
    // A preset file that itself names a preset, perhaps its own, must not lead round in a circle.
    if (reference == Reference::followed)
        loadFile (toFile (loadedPreset.getStringAttribute ("preset", getCurrentPresetPath())),
                  Reference::ignored);

    tellLoaded();
    takeElements (xml);
    dirty = loadedPreset.getBoolAttribute ("dirty", false);
    tellDirty (dirty);
}

bool PresetFileManager::takeElements (const juce::XmlElement& xml)
{
    auto tookAny = false;

    for (auto* manager : stateManagers)
        tookAny = manager->loadFromParent (xml) || tookAny;

    return tookAny;
}

void PresetFileManager::makeCurrent (const juce::File& file)
{
    {
        const std::scoped_lock lock (mutex);
        currentPresetPath = file.getFullPathName();

        // The list's text has one path a line.
        if (! currentPresetPath.containsAnyOf ("\r\n"))
            recentPresets.addFile (file);
    }

    tellLoaded();
    saveRecentPresets();
    dirty = false;
    tellDirty (false);
}

void PresetFileManager::tellLoaded()
{
    const juce::File file (getCurrentPresetPath());
    const auto name = file.getFileNameWithoutExtension();
    listeners.call ([&] (auto& l) { l.presetLoaded (this, file, name); });
}

void PresetFileManager::addElements (juce::XmlElement& root) const
{
    for (auto* manager : stateManagers)
        manager->saveToParent (root);
}

void PresetFileManager::addTexts (juce::XmlElement& root) const
{
    if (const auto text = getAuthor(); text.isNotEmpty())
        root.setAttribute ("author", text);

    if (const auto text = getDescription(); text.isNotEmpty())
        root.setAttribute ("description", text);
}

void PresetFileManager::writeStateTo (juce::XmlElement& parent) const
{
    addElements (parent);
    const auto path = getCurrentPresetPath();

    if (path.isEmpty())
        return;

    auto* loadedPreset = parent.createNewChildElement (getReferenceTag());
    loadedPreset->setAttribute ("preset", path);
    loadedPreset->setAttribute ("dirty", isDirty() ? 1 : 0);
}

bool PresetFileManager::savePresetToFile (const juce::File& file)
{
    const auto root = processor->createPresetRoot();
    addTexts (*root);
    addElements (*root);

    if (! XmlWriter::write (*root, file))
        return false;

    scanUserPresets();
    listeners.call ([&] (auto& l) { l.presetSaved (this, file); });
    loadPreset (file, nullptr);
    return true;
}

juce::String PresetFileManager::getStateText() const
{
    juce::XmlElement root (processor->getName());
    addTexts (root);
    addElements (root);
    return XmlWriter::toText (root, juce::XmlElement::TextFormat().withoutHeader());
}

void PresetFileManager::loadStateText (const juce::String& text)
{
    loadStateFrom (XmlReader::parse (text).get(), {});
}

void PresetFileManager::copyStateToClipboard() const
{
    if (const auto text = getStateText(); text.isNotEmpty())
        juce::SystemClipboard::copyTextToClipboard (text);
}

void PresetFileManager::pasteStateFromClipboard()
{
    loadStateText (juce::SystemClipboard::getTextFromClipboard());
}

} // namespace zembra
