// Runs the message loop for a while in the middle of a test.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_events/juce_events.h>

namespace juce
{
// Part of JUCE's event module, but of none of its headers.
bool dispatchNextMessageOnSystemQueue (bool returnIfNoPendingMessages);
} // namespace juce

/** Dispatches messages and timers until something is true; false if it isn't after 10 s. */
template <typename Condition>
bool runMessageLoopUntil (Condition&& isTrue)
{
    for (int waitedMs = 0; waitedMs < 10000; ++waitedMs)
    {
        while (juce::dispatchNextMessageOnSystemQueue (true))
            if (isTrue())
                return true;

        if (isTrue())
            return true;

        juce::Thread::sleep (1);
    }

    return false;
}
