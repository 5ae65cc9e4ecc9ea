// Runs the tests with JUCE's message thread set up, as a host would have it.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/TestWindow.h"

#include <gtest/gtest.h>
#include <juce_events/juce_events.h>

int main (int argc, char** argv)
{
    testing::InitGoogleTest (&argc, argv);
    const juce::ScopedJuceInitialiser_GUI juceIsUp;

    // Sees to it that a display without a window manager, which refuses some of the properties that
    // JUCE gives its windows, doesn't end the process.
    juce::ignoreUnused (TestWindow::hasDisplay());
    return RUN_ALL_TESTS();
}
