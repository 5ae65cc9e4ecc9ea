// Entry of one fuzz target; VORLO_FUZZ_TARGET names it.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/fuzz/FuzzTargets.h"

#include <juce_events/juce_events.h>

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize (int*, char***)
{
    // Never shut down: the targets keep an instance until the process ends.
    juce::initialiseJuce_GUI();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput (const std::uint8_t* data, std::size_t size)
{
    if (const auto problem = fuzz::VORLO_FUZZ_TARGET (data, size); ! problem.empty())
    {
        std::fprintf (stderr, "%s\n", problem.c_str());
        std::abort();
    }

    return 0;
}
