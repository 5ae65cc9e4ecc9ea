// The snapshot tool: renders the editor into a PNG file.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/snapshot/Snapshot.h"

#include <juce_gui_basics/juce_gui_basics.h>

#include <iostream>

namespace
{

int fail (const juce::String& fault)
{
    std::cerr << "vorlo-snapshot: " << fault << '\n';
    return 1;
}

/** Runs the message loop for a while; only once in a process. */
void runMessageLoop (int milliseconds)
{
    juce::Timer::callAfterDelay (milliseconds,
                                 [] { juce::MessageManager::getInstance()->stopDispatchLoop(); });
    juce::MessageManager::getInstance()->runDispatchLoop();
}

} // namespace

int main (int argc, char** argv)
{
    juce::StringArray arguments;

    for (int i = 1; i < argc; ++i)
        arguments.add (juce::String::fromUTF8 (argv[i]));

    SnapshotOptions options;

    if (const auto fault = SnapshotOptions::parse (arguments, options); fault.isNotEmpty())
        return fail (fault);

    const juce::ScopedJuceInitialiser_GUI gui;
    Snapshot snapshot (options);

    if (const auto fault = snapshot.open(); fault.isNotEmpty())
        return fail (fault);

    runMessageLoop (Snapshot::settlingTime);
    const auto file = juce::File::getCurrentWorkingDirectory().getChildFile (options.outputPath);

    if (const auto fault = Snapshot::writePng (snapshot.paint(), file); fault.isNotEmpty())
        return fail (fault);

    return 0;
}
