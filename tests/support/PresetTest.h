// What tests of presets start from: folders on disk and instances that use them.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/Settings.h"
#include "framework/presets/PresetFolders.h"
#include "product/VorloProcessor.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include "tests/support/PresetLog.h"

/** Folders of its own, and files written into them by hand. */
class PresetTest : public testing::Test
{
protected:
    std::unique_ptr<VorloProcessor> makeProcessor() const
    {
        return std::make_unique<VorloProcessor> (roots);
    }

    /** Writes a file with the given `PARAMS` attributes. */
    static juce::File write (const juce::File& file, const juce::String& attributes,
                             const juce::String& rootAttributes = {})
    {
        file.create();
        EXPECT_TRUE (file.replaceWithText ("<Vorlo " + rootAttributes + "><PARAMS " + attributes
                                           + "/></Vorlo>"));
        return file;
    }

    juce::File writeUser (const juce::String& path, const juce::String& attributes = {},
                          const juce::String& rootAttributes = {}) const
    {
        return write (folders.user.getChildFile (path + ".ompreset"), attributes, rootAttributes);
    }

    static double get (VorloProcessor& processor, const char* id)
    {
        return processor.getParamSet().getParam (juce::String (id))->getValue();
    }

    /** Edits a parameter as a control would. */
    static void edit (VorloProcessor& processor, const char* id, double plain)
    {
        processor.getParamSet()
            .getParam (juce::String (id))
            ->setValue (plain, zembra::sourceEditor, &processor.getUndoManager());
    }

    TemporaryFolder folder;
    zembra::FolderRoots roots = zembra::FolderRoots::inside (folder.get());
    zembra::PresetFolders folders{ roots, "Ombrel", "Vorlo" };
};
