// The output mix of the reference engine: dry and wet gain ramps and the limiter.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ReferenceRamp.h"

#include <cstddef>
#include <vector>

namespace reference
{

/** Safety limiter of one channel: pulls down above +12 dB, holds, recovers in a staircase. */
class OutputLimiter
{
public:
    float process (float x);

private:
    static constexpr float threshold = 4.0f;
    static constexpr int holdSamples = 4096;

    float stepFor (float magnitude);

    int holdCounter = 0;
    float targetGain = 1.0f, gain = 1.0f, peak = 0.0f;
};

/** Gains that the mix glides to; linear. */
struct MixGains
{
    float dry = 0.0f, wet = 0.0f;
};

/** Adds the dry copy to the processed signal and limits every output. */
class DryWetMix
{
public:
    explicit DryWetMix (int numOutputs) : limiters (static_cast<std::size_t> (numOutputs)) {}

    /** Mixes n samples into channels; dry has a channel per input, at most 2. */
    void process (std::vector<std::vector<float>>& dry, int numInputs, float* const* channels,
                  int numChannels, int n, MixGains target);

private:
    GainRamp dryRamp, wetRamp;
    std::vector<OutputLimiter> limiters;
};

} // namespace reference
