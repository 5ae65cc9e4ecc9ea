// A listener that writes down what a preset family tells.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/presets/PresetFileManager.h"

#include <gtest/gtest.h>

/** Keeps one word for each callback, with the file's name where there is one. */
class PresetLog final : public zembra::PresetFileManagerListener
{
public:
    using Manager = zembra::PresetFileManager;
    using File = juce::File;

    explicit PresetLog (Manager& managerToFollow) : manager (managerToFollow)
    {
        manager.addListener (this);
    }

    ~PresetLog() override { manager.removeListener (this); }

    /** What was told since the last call, separated by spaces. */
    juce::String take()
    {
        auto text = words.joinIntoString (" ");
        words.clear();
        return text;
    }

    void presetSaved (Manager*, const File& f) override { add ("saved", f); }
    void presetLoaded (Manager*, const File& f, const juce::String& name) override
    {
        EXPECT_EQ (name, f.getFileNameWithoutExtension());
        add ("loaded", f);
    }
    void factoryFolderChanged (Manager*, const File& f) override { add ("factory", f); }
    void designersFolderChanged (Manager*, const File& f) override { add ("designers", f); }
    void userFoldersChanged (Manager*, const juce::FileSearchPath& p) override
    {
        add ("user", p[0]);
    }
    void presetRenamed (Manager*, const File& f, const File& old) override
    {
        add ("renamed", f);
        add ("from", old);
    }
    void presetFileDeleted (Manager*, const File& f) override { add ("fileDeleted", f); }
    void presetFolderDeleted (Manager*, const File& f) override { add ("deleted", f); }
    void recentsChanged (Manager*, const juce::RecentlyOpenedFilesList& list) override
    {
        words.add ("recents:" + juce::String (list.getNumFiles()));
    }
    void presetFolderAdded (Manager*, const File& f) override { add ("folderAdded", f); }
    void bankCreated (Manager*, const File& f) override { add ("bank", f); }
    void presetDirtyChanged (Manager*, const File& f, bool dirty) override
    {
        add (dirty ? "dirty" : "clean", f);
    }

private:
    void add (const juce::String& word, const File& file)
    {
        words.add (word + ":" + file.getFileNameWithoutExtension());
    }

    Manager& manager;
    juce::StringArray words;
};
