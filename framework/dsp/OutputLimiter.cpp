// The gain computer of the safety limiter.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/dsp/OutputLimiter.h"

#include <cmath>

namespace zembra
{

void OutputLimiter::process (float* samples, int numSamples) noexcept
{
    constexpr float closeEnough = 0.0001f;

    for (int i = 0; i < numSamples; ++i)
    {
        gain += nextGainStep (std::abs (samples[i]));
        samples[i] *= gain;

        if (std::abs (gain - targetGain) <= closeEnough)
            gain = targetGain;
    }
}

float OutputLimiter::nextGainStep (float magnitude) noexcept
{
    const auto over = magnitude >= threshold;

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

} // namespace zembra
