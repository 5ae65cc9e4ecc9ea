// Renaming, deleting, banks and stepping of a preset family.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/PluginProcessor.h"
#include "framework/presets/PresetFileManager.h"

namespace zembra
{

bool PresetFileManager::isReadOnly (const juce::File& file) const
{
    return file.isAChildOf (getFactoryFolder()) || file.isAChildOf (getDesignersFolder());
}

void PresetFileManager::forgetRecent (const juce::File& file)
{
    {
        const std::scoped_lock lock (mutex);
        recentPresets.removeFile (file);
    }

    saveRecentPresets();
}

bool PresetFileManager::renamePreset (const juce::File& file, const juce::String& newName)
{
    if (isReadOnly (file) || newName.trim().isEmpty())
        return false;

    const auto target = file.getSiblingFile (newName).withFileExtension (extension);

    // A move would delete what stands at its goal: another preset isn't ours to replace.
    if (target.getParentDirectory() != file.getParentDirectory()
        || (target != file && target.exists()) || ! file.moveFileTo (target))
        return false;

    if (getUserPresets().contains (file.getFullPathName()))
        scanUserPresets();

    listeners.call ([&] (auto& l) { l.presetRenamed (this, target, file); });
    forgetRecent (file);

    if (getCurrentPresetPath() == file.getFullPathName())
        loadPreset (target, nullptr);

    return true;
}

bool PresetFileManager::deletePreset (const juce::File& file)
{
    if (isReadOnly (file) || ! file.moveToTrash())
        return false;

    {
        const std::scoped_lock lock (mutex);
        const auto& path = file.getFullPathName();
        presets.userPresets.removeString (path);

        if (currentPresetPath == path)
            currentPresetPath.clear();
    }

    listeners.call ([&] (auto& l) { l.presetFolderDeleted (this, file); });
    forgetRecent (file);
    return true;
}

bool PresetFileManager::createBank (const juce::File& folder)
{
    const auto made = folder.createDirectory().wasOk();
    listeners.call ([&] (auto& l) { l.bankCreated (this, folder); });
    return made;
}

void PresetFileManager::stepPreset (int delta)
{
    juce::String path;

    {
        const std::scoped_lock lock (mutex);
        path = presets.step (currentPresetPath, delta);
    }

    loadPreset (juce::File (path), &processor->getUndoManager());
}

} // namespace zembra
