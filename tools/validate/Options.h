// What the command line of vorlo_validate asks for.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

namespace validate
{

struct Options
{
    bool isThorough = false;
    juce::int64 seed = 1;
    int numRepeats = 1;
    juce::String only;         ///< if given, only checks whose name has this in it
    juce::StringArray plugins; ///< paths

    /** Reads the words of a command line.
        @returns  what is wrong with them, in one line; empty if nothing is
    */
    juce::String parse (const juce::StringArray& words);
};

} // namespace validate
