// What all tests of vorlo-render have: a folder to work in, and the tool.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/AudioFiles.h"
#include "tests/support/ToolProcess.h"

#include <gtest/gtest.h>

#include <array>

/** Runs the built tool in an empty folder. */
class RenderToolTest : public testing::Test
{
protected:
    /** Runs the tool with arguments that are separated by spaces. */
    ToolProcess::Result run (const juce::String& arguments, std::optional<int> largestFile = {})
    {
        return ToolProcess::run (tool, split (arguments), folder.get(), largestFile, home);
    }

    /** Runs the tool, which must succeed silently, and reads its result, "out.wav" or another. */
    AudioFile render (const juce::String& arguments, const juce::String& result = "out.wav")
    {
        const auto ended = run (arguments);
        EXPECT_EQ (ended.exitCode, 0) << arguments << ": " << ended.errors;
        EXPECT_EQ (ended.output + ended.errors, "") << arguments;
        return AudioFile::read (folder.getChild (result));
    }

    static juce::StringArray split (const juce::String& arguments)
    {
        auto words = juce::StringArray::fromTokens (arguments, false);
        words.removeEmptyStrings();
        return words;
    }

    /** The built plug-ins: VST 2, VST3, LV2. */
    static std::array<juce::File, 3> getPlugins()
    {
        return { juce::File (VORLO_VST2_PATH), juce::File (VORLO_VST3_PATH),
                 juce::File (VORLO_LV2_PATH) };
    }

    /** Puts links to them into the folder, so that no argument meets a path with spaces. */
    void linkPlugins() const
    {
        for (const auto& plugin : getPlugins())
            plugin.createSymbolicLink (folder.getChild (plugin.getFileName()), false);
    }

    /** The names of everything in the folder, hidden files too. */
    juce::String listFolder() const
    {
        constexpr auto everything = juce::File::findFilesAndDirectories;
        juce::StringArray names;

        for (const auto& file : folder.get().findChildFiles (everything, false))
            names.add (file.getFileName());

        names.sort (false);
        return names.joinIntoString (" ");
    }

    const juce::File tool{ VORLO_RENDER_PATH };
    TemporaryFolder folder;
    juce::File home; ///< of the tool; unless set, one that doesn't exist
};
