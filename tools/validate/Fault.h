// How a check says that something is wrong, or that it has nothing to look at.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

namespace validate
{

/** What a check throws at the first thing that is wrong. */
struct Fault
{
    juce::String reason;
};

/** What a check throws when it doesn't apply to this plug-in or this machine. */
struct Skipped
{
    juce::String reason;
};

inline void expect (bool isTrue, const juce::String& reason)
{
    if (! isTrue)
        throw Fault{ reason };
}

} // namespace validate
