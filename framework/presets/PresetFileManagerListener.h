// What a preset family tells those who show it.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_extra/juce_gui_extra.h>

namespace zembra
{

class PresetFileManager;

/** Callbacks of a PresetFileManager. Each runs on the thread of the change: the message thread, or
    the thread on which the host restores a state; never the audio thread.
*/
class PresetFileManagerListener
{
public:
    virtual ~PresetFileManagerListener() = default;

    /** A preset was written to a file. */
    virtual void presetSaved (PresetFileManager*, const juce::File&) {}

    /** A preset, or a state that belongs to one, was loaded. */
    virtual void presetLoaded (PresetFileManager*, const juce::File&, const juce::String& /*name*/)
    {
    }

    virtual void factoryFolderChanged (PresetFileManager*, const juce::File&) {}
    virtual void designersFolderChanged (PresetFileManager*, const juce::File&) {}
    virtual void userFoldersChanged (PresetFileManager*, const juce::FileSearchPath&) {}
    virtual void presetRenamed (PresetFileManager*, const juce::File& /*newFile*/,
                                const juce::File& /*oldFile*/)
    {
    }

    /** Reserved: nothing calls it. */
    virtual void presetFileDeleted (PresetFileManager*, const juce::File&) {}

    /** A preset was moved to the trash. */
    virtual void presetFolderDeleted (PresetFileManager*, const juce::File&) {}
    virtual void recentsChanged (PresetFileManager*, const juce::RecentlyOpenedFilesList&) {}

    /** Reserved: nothing calls it. */
    virtual void presetFolderAdded (PresetFileManager*, const juce::File&) {}

    /** The making of a bank was tried. */
    virtual void bankCreated (PresetFileManager*, const juce::File&) {}

    /** The current preset and the instance have come to differ, or are the same again. */
    virtual void presetDirtyChanged (PresetFileManager*, const juce::File&, bool /*dirty*/) {}
};

} // namespace zembra
