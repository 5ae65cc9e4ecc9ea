// One family of preset files: folders, lists, the current preset, loading and saving.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/PresetStateManager.h"
#include "framework/presets/PresetFileManagerListener.h"
#include "framework/presets/PresetStepper.h"

#include <juce_gui_extra/juce_gui_extra.h>

#include <atomic>
#include <mutex>

namespace zembra
{

class PluginProcessor;
class Settings;

/** Finds, loads, saves, renames and deletes the preset files of one kind, and knows which of them is
    loaded and whether the instance has changed since.

    What a preset holds is up to state managers, of which the family writes and reads one element
    each. A bank is a folder; there is no other record of banks.

    The operations on files and lists belong to the message thread. Loading a tree, writing one, and
    every getter may run on any thread but the audio thread, since hosts restore states where they
    like; the lock that guards the texts is never held while others are called. stateChanged() comes
    from any thread, and waits on none.
*/
class PresetFileManager final : private PresetStateManager::Listener
{
public:
    class LoadPresetFileAction;

    /** Scans the folders, takes the recent list from the settings and loads the default preset.

        @param designersFolder  may be an empty path: the family has no designers' presets
        @param extension        with or without its leading point
        @param settings         null if nothing is to be remembered
    */
    PresetFileManager (PluginProcessor* processor, PresetStateManager* stateManager,
                       const juce::File& factoryFolder, const juce::File& designersFolder,
                       const juce::FileSearchPath& userFolders, const juce::String& extension,
                       Settings* settings);
    ~PresetFileManager() override;

    /** Adds a listener and, if a preset is loaded whose file exists, tells it of that at once. */
    void addListener (PresetFileManagerListener* listener);
    void removeListener (PresetFileManagerListener* listener) { listeners.remove (listener); }

    /** True for a visible regular file that parses as XML and has the family's extension, or another
        one but a state manager's element.
    */
    bool isValidPresetFile (const juce::File& file) const;

    /** The listed presets as full paths, in the order of the file system. */
    juce::StringArray getFactoryPresets() const { return getList (&PresetStepper::factoryPresets); }
    juce::StringArray getDesignersPresets() const
    {
        return getList (&PresetStepper::designersPresets);
    }
    juce::StringArray getUserPresets() const { return getList (&PresetStepper::userPresets); }

    juce::File getFactoryFolder() const;
    juce::File getDesignersFolder() const;
    juce::FileSearchPath getUserFolders() const;
    const juce::String& getExtension() const noexcept { return extension; }

    /** These store the folder, list its presets anew and tell the listeners. */
    void setFactoryFolder (const juce::File& folder);
    void setDesignersFolder (const juce::File& folder);
    void setUserFolders (const juce::FileSearchPath& folders);

    /** Lists the user's presets anew. */
    void scanUserPresets();

    /** True if there is a visible file with the family's extension below the folder. */
    bool folderHasPresets (const juce::File& folder) const;
    bool userFoldersAreEmpty() const;
    bool designersFolderIsEmpty() const { return ! folderHasPresets (getDesignersFolder()); }
    bool factoryFolderIsEmpty() const { return ! folderHasPresets (getFactoryFolder()); }

    /** Renames a preset inside its bank, and reloads it if it is the current one. False, with
        nothing changed, for factory and designers' presets, for a name that leaves the bank or is
        another preset's, and if the file system refuses.
    */
    bool renamePreset (const juce::File& file, const juce::String& newName);

    /** Moves a preset to the trash. False, with nothing changed, for factory and designers' presets
        and where there is no trash.
    */
    bool deletePreset (const juce::File& file);

    /** Makes a folder and what is missing above it. */
    bool createBank (const juce::File& folder);

    /** The last loaded presets, the latest first, ten at most. */
    juce::RecentlyOpenedFilesList getRecentPresets() const;
    void saveRecentPresets();

    /** @param text  one full path a line; other lines are dropped */
    void setRecentPresets (const juce::String& text);

    /** The preset that new instances load; this one doesn't. */
    void setDefaultPreset (const juce::String& path);

    /** The author's name and words that a tree carries; of a file, empty if it is no valid preset. */
    juce::String getDescription (const juce::XmlElement& root) const;
    juce::String getAuthor (const juce::XmlElement& root) const;
    juce::String readDescription (const juce::File& file) const;
    juce::String readAuthor (const juce::File& file) const;

    /** The same of the current preset. Setting them makes it dirty. */
    juce::String getDescription() const { return getText (&PresetFileManager::description); }
    juce::String getAuthor() const { return getText (&PresetFileManager::author); }
    void setDescription (const juce::String& text);
    void setAuthor (const juce::String& text);

    /** The full path of the loaded preset; empty if there is none. */
    juce::String getCurrentPresetPath() const
    {
        return getText (&PresetFileManager::currentPresetPath);
    }

    /** True if something has changed since the current preset was loaded. [any thread] */
    bool isDirty() const noexcept { return dirty.load(); }

    /** Loads the next (1) or previous (-1) preset of the current one's list, undoably. */
    void stepPreset (int delta);

    /** Loads a preset; nothing if it isn't valid, or is loaded and unchanged.
        @param undoManager  null for a load that can't be undone
    */
    void loadPreset (const juce::File& file, juce::UndoManager* undoManager);

    /** Takes a preset or a state from a tree. A state, which names a preset, loads that preset from
        disk first, and then its own values over it.

        @param presetFile  the file that the tree was read from, which becomes the current preset; an
                           empty path if it comes from elsewhere
        @returns           true if a state manager found something; if false, nothing has changed
    */
    bool loadStateFrom (const juce::XmlElement* xml, const juce::File& presetFile);

    /** Appends the present state to a tree: the state managers' elements and, if a preset is loaded,
        which one and whether it is dirty.
    */
    void writeStateTo (juce::XmlElement& parent) const;

    /** Writes a preset to a file and makes it the current one. Replaces the file in one step; false,
        with the old file whole, if it can't be written. The folder must exist.
    */
    bool savePresetToFile (const juce::File& file);

    /** The present state as XML text, and back. [message thread] */
    void copyStateToClipboard() const;
    void pasteStateFromClipboard();
    juce::String getStateText() const;
    void loadStateText (const juce::String& text);

    /** Tells the listeners that the preset has become dirty, if that happened where nobody may be
        kept waiting. [message thread]
    */
    void deliverDirtyChange();

private:
    enum class Reference
    {
        followed,
        ignored
    };

    void stateChanged() override;
    void restoreFromSettings();
    juce::String getKey() const { return stateManagers.getFirst()->getName(); }
    juce::String getReferenceTag() const { return getKey() + "LastLoadedPreset"; }

    juce::StringArray scan (const juce::File& folder) const;
    juce::StringArray getList (juce::StringArray PresetStepper::*list) const;
    juce::String getText (juce::String PresetFileManager::*text) const;
    void setText (juce::String PresetFileManager::*text, const juce::String& value);
    void setList (juce::StringArray PresetStepper::*list, juce::StringArray paths);
    bool isReadOnly (const juce::File& file) const;
    void forgetRecent (const juce::File& file);

    bool isToBeLoaded (const juce::File& file) const;
    void loadFile (const juce::File& file, Reference reference);
    bool takeTree (const juce::XmlElement& xml, const juce::File& presetFile, Reference reference);
    void takeState (const juce::XmlElement& xml, const juce::XmlElement& loadedPreset,
                    Reference reference);
    bool takeElements (const juce::XmlElement& xml);
    void makeCurrent (const juce::File& file);
    void addTexts (juce::XmlElement& root) const;
    void addElements (juce::XmlElement& root) const;
    void tellDirty (bool isNowDirty);
    void tellLoaded();

    PluginProcessor* const processor;
    juce::Array<PresetStateManager*> stateManagers;
    Settings* const settings;
    const juce::String extension;
    ListenerArray<PresetFileManagerListener> listeners;

    mutable std::mutex mutex; ///< guards all that follows down to `recentPresets`
    juce::String description, author, currentPresetPath;
    PresetStepper presets;
    juce::FileSearchPath userFolders;
    juce::RecentlyOpenedFilesList recentPresets;

    std::atomic<bool> dirty{ false };
    std::atomic<bool> dirtyChangeIsUntold{ false };

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PresetFileManager)
};

} // namespace zembra
