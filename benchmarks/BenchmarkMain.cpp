// Runs the benchmarks with JUCE's message thread set up.
// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>
#include <juce_events/juce_events.h>

int main (int argc, char** argv)
{
    const juce::ScopedJuceInitialiser_GUI juceIsUp;
    benchmark::Initialize (&argc, argv);

    if (benchmark::ReportUnrecognizedArguments (argc, argv))
        return 1;

    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
