// The gain computer of the safety limiter.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/dsp/OutputLimiter.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zembra
{

namespace
{

bool hasPeak (const float* samples, int numSamples, float threshold) noexcept
{
    int found = 0;

    for (int i = 0; i < numSamples; ++i)
        found |= std::abs (samples[i]) >= threshold ? 1 : 0;

    return found != 0;
}

} // namespace

void OutputLimiter::process (float* samples, int numSamples) noexcept
{
    if (! hasPeak (samples, numSamples, threshold))
        return processQuiet (samples, numSamples);

    for (int i = 0; i < numSamples; ++i)
        samples[i] = processSample (samples[i]);
}

void OutputLimiter::processQuiet (float* samples, int numSamples) noexcept
{
    while (numSamples > 0 && gain != 1.0f)
    {
        // Up to the next step of the recovery the gain holds.
        const auto held = std::min (numSamples, holdSamples - 1 - holdCounter);

        for (int i = 0; i < held; ++i)
            samples[i] *= gain;

        holdCounter += held;

        if (held < numSamples)
            samples[held] = processSample (samples[held]);

        samples += held + 1;
        numSamples -= held + 1;
    }
}

float OutputLimiter::processSample (float x) noexcept
{
    constexpr float closeEnough = 0.0001f;
    constexpr auto largest = std::numeric_limits<float>::max();

    gain += nextGainStep (std::abs (x));
    const auto y = (std::isinf (x) ? std::copysign (largest, x) : x) * gain;

    if (std::abs (gain - targetGain) <= closeEnough)
        gain = targetGain;

    return y;
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
