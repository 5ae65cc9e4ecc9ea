// Small numeric companions of the reference engine: gain ramp, value smoother, soft clip, rounding.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReferenceRamp.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace reference
{

static constexpr float snapDistance = 1.0e-5f;
static constexpr float asymmetry = 1.0e-5f;

std::int32_t roundToInt (double value)
{
    const auto bits = std::bit_cast<std::uint64_t> (value + 6755399441055744.0);
    return static_cast<std::int32_t> (static_cast<std::uint32_t> (bits));
}

static float clipCurve (float u)
{
    const auto p = ((u + 3.0f) * u + 6.0f) * u;
    return p / (p + 12.0f);
}

float softClip (float x)
{
    if (x >= 0.0f)
        return clipCurve (x * ((1.0f - asymmetry) * 2.0f));

    return -clipCurve (x * ((asymmetry + 1.0f) * -2.0f));
}

static void applyGain (float* samples, int n, float gain)
{
    if (gain == 1.0f)
        return;

    for (int i = 0; i < n; ++i)
        samples[i] = gain == 0.0f ? 0.0f : samples[i] * gain;
}

void applyGainRamp (float* samples, int n, float start, float end)
{
    if (start == end)
        return applyGain (samples, n, start);

    const auto increment = (end - start) / static_cast<float> (n);

    for (int i = 0; i < n; ++i)
    {
        samples[i] *= start;
        start += increment;
    }
}

void GainRamp::applyBlock (float* const* channels, int numChannels, int n, float target)
{
    if (n < steps)
    {
        const auto share = static_cast<float> (n) / static_cast<float> (steps);
        const auto end = share * (target - gain) + gain;

        for (int c = 0; c < numChannels; ++c)
            applyGainRamp (channels[c], n, gain, end);

        gain = std::abs (gain - target) <= snapDistance ? target : end;
        return;
    }

    for (int c = 0; c < numChannels; ++c)
    {
        applyGainRamp (channels[c], steps, gain, target);
        applyGain (channels[c] + steps, n - steps, target);
    }

    gain = target;
}

float GainRamp::nextStep (float target)
{
    if (gain == target)
        return target;

    const auto multiplier = (target - gain) / static_cast<float> (steps) + gain;
    gain = std::abs (gain - target) <= snapDistance ? target : multiplier;
    return multiplier;
}

void LinearSmoother::setTarget (float newTarget)
{
    if (newTarget == target)
        return;

    target = newTarget;
    done = false;
    increment = (target - current) / static_cast<float> (steps);
}

void LinearSmoother::fill (float* out, int n)
{
    int written = 0;

    if (! done)
    {
        const auto left = std::max (0, roundToInt ((target - current) / increment) - 1);

        for (; written < std::min (left, n); ++written)
            out[written] = current += increment;

        if (left > n)
            return;

        current = target;
        increment = 0.0f;
        done = true;
    }

    for (; written < n; ++written)
        out[written] = target;
}

} // namespace reference
