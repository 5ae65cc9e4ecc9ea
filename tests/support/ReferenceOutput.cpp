// The output mix of the reference engine: dry and wet gain ramps and the limiter.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReferenceOutput.h"

#include <algorithm>
#include <cmath>

namespace reference
{

void DryWetMix::process (std::vector<std::vector<float>>& dry, int numInputs,
                         float* const* channels, int numChannels, int n, MixGains target)
{
    wetRamp.applyBlock (channels, numChannels, n, target.wet);

    std::vector<float*> dryPointers;

    for (auto& channel : dry)
        dryPointers.push_back (channel.data());

    dryRamp.applyBlock (dryPointers.data(), static_cast<int> (dryPointers.size()), n, target.dry);

    const auto numOutputs = static_cast<int> (limiters.size());

    for (int c = 0; c < std::min (numOutputs, numChannels); ++c)
    {
        const auto* source = dry[numInputs == numOutputs ? static_cast<size_t> (c) : 0].data();
        auto& limiter = limiters[static_cast<size_t> (c)];

        for (int i = 0; i < n; ++i)
            channels[c][i] = limiter.process (channels[c][i] + source[i]);
    }
}

/** The gain step of one sample: a new peak, the hold, its end, or the way down while over. */
float OutputLimiter::stepFor (float magnitude)
{
    static constexpr float attackRate = 1.0f / 64.0f, releaseRate = 1.0f / 256.0f;
    const bool over = magnitude >= threshold;

    if (over)
    {
        holdCounter = 0;

        if (magnitude > peak)
        {
            peak = magnitude;
            targetGain = 0.99f / magnitude;
        }
    }
    else if (gain != 1.0f)
    {
        if (++holdCounter < holdSamples)
            return 0.0f;

        peak = threshold;
        holdCounter = 0;
        targetGain = 1.0f;
        return (1.0f - gain) * releaseRate;
    }

    return (targetGain - gain) * attackRate;
}

float OutputLimiter::process (float x)
{
    gain += stepFor (std::abs (x));
    const auto out = x * gain;
    const auto distance = gain - targetGain;

    if (distance != 0.0f && std::abs (distance) <= 0.0001f)
        gain = targetGain;

    return out;
}

} // namespace reference
