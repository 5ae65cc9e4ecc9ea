// The message loop, step by step.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/validate/Messages.h"

#include <juce_events/juce_events.h>

namespace juce
{
// Part of JUCE's event module, but of none of its headers.
bool dispatchNextMessageOnSystemQueue (bool returnIfNoPendingMessages);
} // namespace juce

namespace validate
{

void runMessages (int milliseconds)
{
    const auto start = juce::Time::getMillisecondCounterHiRes();

    do
    {
        if (! juce::dispatchNextMessageOnSystemQueue (true))
            juce::Thread::sleep (1);
    } while (juce::Time::getMillisecondCounterHiRes() - start < milliseconds);
}

} // namespace validate
