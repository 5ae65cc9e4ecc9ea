// What a snapshot shows, as told on the command line.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

#include <vector>

/** `OUT.png [--size WxH] [--scale N] [--set id=value]… [--show dialog]` */
struct SnapshotOptions
{
    struct Setting
    {
        juce::String paramId;
        juce::String value; ///< a number or the name of a value
    };

    juce::String outputPath;
    int width = 750, height = 316; ///< of the editor, in pixels at scale 1
    float scale = 1.0f;            ///< pixels of the picture for each of the editor's
    std::vector<Setting> settings; ///< in the order in which they are applied
    juce::String dialog;           ///< what to show over the editor; empty for nothing

    /** Reads the arguments behind the program's name. On a fault `options` is left half filled.
        @returns  what is wrong, as one line; empty if nothing is
    */
    static juce::String parse (const juce::StringArray& arguments, SnapshotOptions& options);

    /** How the program is used, as one line. */
    static juce::String getUsage();
};
