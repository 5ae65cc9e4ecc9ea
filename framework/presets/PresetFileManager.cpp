// Construction, scans, validity, texts and settings of a preset family.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/presets/PresetFileManager.h"

#include "framework/core/PluginProcessor.h"
#include "framework/core/Settings.h"
#include "framework/core/XmlReader.h"
#include "framework/presets/PresetFileCache.h"
#include "framework/presets/PresetFolderWalk.h"

namespace zembra
{

namespace
{

constexpr int maxRecentPresets = 10;

/** Paths that were once written by the recent list; a line of anything else would make a file
    relative to wherever the host happens to run.
*/
juce::String keepAbsolutePaths (const juce::String& text)
{
    auto lines = juce::StringArray::fromLines (text);

    for (int i = lines.size(); --i >= 0;)
        if (! juce::File::isAbsolutePath (lines[i]))
            lines.remove (i);

    return lines.joinIntoString ("\n");
}

} // namespace

PresetFileManager::PresetFileManager (PluginProcessor* processorToUse,
                                      PresetStateManager* stateManager,
                                      const juce::File& factoryFolder,
                                      const juce::File& designersFolder,
                                      const juce::FileSearchPath& userFoldersToUse,
                                      const juce::String& extensionToUse, Settings* settingsToUse)
    : processor (processorToUse),
      stateManagers{ stateManager },
      settings (settingsToUse),
      extension (extensionToUse.startsWithChar ('.') ? extensionToUse : "." + extensionToUse)
{
    recentPresets.setMaxNumberOfItems (maxRecentPresets);
    setFactoryFolder (factoryFolder);
    setDesignersFolder (designersFolder);
    setUserFolders (userFoldersToUse);

    if (settings != nullptr)
        restoreFromSettings();

    for (auto* manager : stateManagers)
        manager->addListener (this);
}

PresetFileManager::~PresetFileManager()
{
    for (auto* manager : stateManagers)
        manager->removeListener (this);
}

void PresetFileManager::restoreFromSettings()
{
    if (const auto recents = settings->getRecentFiles (getKey()); recents.isNotEmpty())
        setRecentPresets (recents);

    if (const auto path = settings->getDefaultPreset (getKey()); juce::File::isAbsolutePath (path))
        loadPreset (juce::File (path), nullptr);
}

void PresetFileManager::addListener (PresetFileManagerListener* listener)
{
    if (listener == nullptr)
        return;

    listeners.add (listener);
    const juce::File file (getCurrentPresetPath());

    if (file.exists())
    {
        listener->presetLoaded (this, file, file.getFileNameWithoutExtension());
        listener->presetDirtyChanged (this, file, isDirty());
    }
}

bool PresetFileManager::isValidPresetFile (const juce::File& file) const
{
    if (file == juce::File() || file.isHidden())
        return false;

    if (file.getFileExtension() == extension)
        return PresetFileCache::get().parses (file);

    const auto root = XmlReader::parse (file);
    return root != nullptr
           && std::any_of (stateManagers.begin(), stateManagers.end(),
                           [&] (const auto* manager) { return manager->canLoadXml (*root); });
}

juce::StringArray PresetFileManager::scan (const juce::File& folder) const
{
    juce::StringArray found;
    PresetFolderWalk walk (folder, extension, PresetFolderWalk::Hidden::included);

    while (walk.next())
        if (const auto file = walk.getFile(); isValidPresetFile (file))
            found.add (file.getFullPathName());

    return found;
}

bool PresetFileManager::folderHasPresets (const juce::File& folder) const
{
    return PresetFolderWalk (folder, extension, PresetFolderWalk::Hidden::skipped).next();
}

bool PresetFileManager::userFoldersAreEmpty() const
{
    const auto folders = getUserFolders();

    for (int i = 0; i < folders.getNumPaths(); ++i)
        if (folderHasPresets (folders[i]))
            return false;

    return true;
}

juce::StringArray PresetFileManager::getList (juce::StringArray PresetStepper::*list) const
{
    const std::scoped_lock lock (mutex);
    return presets.*list;
}

juce::String PresetFileManager::getText (juce::String PresetFileManager::*text) const
{
    const std::scoped_lock lock (mutex);
    return this->*text;
}

void PresetFileManager::setText (juce::String PresetFileManager::*text, const juce::String& value)
{
    const std::scoped_lock lock (mutex);
    this->*text = value;
}

void PresetFileManager::setList (juce::StringArray PresetStepper::*list, juce::StringArray paths)
{
    const std::scoped_lock lock (mutex);
    presets.*list = std::move (paths);
}

juce::File PresetFileManager::getFactoryFolder() const
{
    const std::scoped_lock lock (mutex);
    return presets.factoryFolder;
}

juce::File PresetFileManager::getDesignersFolder() const
{
    const std::scoped_lock lock (mutex);
    return presets.designersFolder;
}

juce::FileSearchPath PresetFileManager::getUserFolders() const
{
    const std::scoped_lock lock (mutex);
    return userFolders;
}

void PresetFileManager::setFactoryFolder (const juce::File& folder)
{
    {
        const std::scoped_lock lock (mutex);
        presets.factoryFolder = folder;
    }

    setList (&PresetStepper::factoryPresets, scan (folder));
    listeners.call ([&] (auto& l) { l.factoryFolderChanged (this, folder); });
}

void PresetFileManager::setDesignersFolder (const juce::File& folder)
{
    {
        const std::scoped_lock lock (mutex);
        presets.designersFolder = folder;
    }

    setList (&PresetStepper::designersPresets, scan (folder));
    listeners.call ([&] (auto& l) { l.designersFolderChanged (this, folder); });
}

void PresetFileManager::setUserFolders (const juce::FileSearchPath& folders)
{
    {
        const std::scoped_lock lock (mutex);
        userFolders = folders;
    }

    scanUserPresets();
    listeners.call ([&] (auto& l) { l.userFoldersChanged (this, folders); });
}

void PresetFileManager::scanUserPresets()
{
    const auto folders = getUserFolders();
    juce::StringArray found;

    for (int i = 0; i < folders.getNumPaths(); ++i)
        found.addArray (scan (folders[i]));

    setList (&PresetStepper::userPresets, std::move (found));
}

juce::RecentlyOpenedFilesList PresetFileManager::getRecentPresets() const
{
    const std::scoped_lock lock (mutex);
    return recentPresets;
}

void PresetFileManager::saveRecentPresets()
{
    const auto recents = getRecentPresets();

    if (settings != nullptr)
        settings->setRecentFiles (getKey(), recents.toString());

    listeners.call ([&] (auto& l) { l.recentsChanged (this, recents); });
}

void PresetFileManager::setRecentPresets (const juce::String& text)
{
    {
        const std::scoped_lock lock (mutex);
        recentPresets.restoreFromString (keepAbsolutePaths (text));
    }

    saveRecentPresets();
}

void PresetFileManager::setDefaultPreset (const juce::String& path)
{
    if (settings != nullptr)
        settings->setDefaultPreset (getKey(), path);
}

juce::String PresetFileManager::getDescription (const juce::XmlElement& root) const
{
    const auto& text = root.getStringAttribute ("description");
    return text.isNotEmpty() ? text : stateManagers.getFirst()->getDescription (root);
}

juce::String PresetFileManager::getAuthor (const juce::XmlElement& root) const
{
    const auto& text = root.getStringAttribute ("author");
    return text.isNotEmpty() ? text : stateManagers.getFirst()->getAuthor (root);
}

juce::String PresetFileManager::readDescription (const juce::File& file) const
{
    const auto root = isValidPresetFile (file) ? XmlReader::parse (file) : nullptr;
    return root != nullptr ? getDescription (*root) : juce::String();
}

juce::String PresetFileManager::readAuthor (const juce::File& file) const
{
    const auto root = isValidPresetFile (file) ? XmlReader::parse (file) : nullptr;
    return root != nullptr ? getAuthor (*root) : juce::String();
}

void PresetFileManager::setDescription (const juce::String& text)
{
    setText (&PresetFileManager::description, text);
    stateChanged();
}

void PresetFileManager::setAuthor (const juce::String& text)
{
    setText (&PresetFileManager::author, text);
    stateChanged();
}

void PresetFileManager::stateChanged()
{
    if (dirty.exchange (true))
        return;

    // Telling needs the path, and that a lock: a realtime thread leaves it to the message thread.
    if (processor->isInRealtimeCall())
        dirtyChangeIsUntold = true;
    else
        tellDirty (true);
}

void PresetFileManager::deliverDirtyChange()
{
    if (dirtyChangeIsUntold.exchange (false) && isDirty())
        tellDirty (true);
}

void PresetFileManager::tellDirty (bool isNowDirty)
{
    const juce::File file (getCurrentPresetPath());
    listeners.call ([&] (auto& l) { l.presetDirtyChanged (this, file, isNowDirty); });
}

} // namespace zembra
