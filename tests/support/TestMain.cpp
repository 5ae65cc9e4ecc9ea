// Runs the tests with JUCE's message thread set up, as a host would have it.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/TestWindow.h"
#include "tools/hosting/SharedFolders.h"

#include <gtest/gtest.h>
#include <juce_events/juce_events.h>

#if JUCE_LINUX
#include <dlfcn.h>
#endif

namespace
{

/** JUCE lets go of Xlib in the end. What Xlib keeps for the life of a process would then seem leaked
    to a sanitizer, with nobody left who points to it.
*/
void keepXlibLoaded()
{
#if JUCE_LINUX
    dlopen ("libX11.so.6", RTLD_LAZY);
#endif
}

} // namespace

int main (int argc, char** argv)
{
    testing::InitGoogleTest (&argc, argv);
    hosting::coverSharedFolders ({ juce::File (VORLO_VST2_PATH) });
    keepXlibLoaded();
    const juce::ScopedJuceInitialiser_GUI juceIsUp;

    // Sees to it that a display without a window manager, which refuses some of the properties that
    // JUCE gives its windows, doesn't end the process.
    juce::ignoreUnused (TestWindow::hasDisplay());
    return RUN_ALL_TESTS();
}
