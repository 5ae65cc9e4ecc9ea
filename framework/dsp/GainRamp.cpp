// The block form of the gain ramp.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/dsp/GainRamp.h"

namespace zembra
{

GainRamp::Glide GainRamp::glide (int numSamples, float target) noexcept
{
    const auto isShort = numSamples < steps;
    const auto part = static_cast<float> (numSamples) / static_cast<float> (steps);
    const Glide result{ gain, isShort ? part * (target - gain) + gain : target,
                        std::min (numSamples, steps) };
    gain = isShort && ! isClose (gain, target) ? result.end : target;
    return result;
}

void GainRamp::beginBlock (int numSamples, float target, Control& control) noexcept
{
    const auto [start, end, length] = glide (numSamples, target);

    if (start == end)
        return control.set (start);

    const auto increment = (end - start) / static_cast<float> (length);
    auto* const curve = control.move();
    auto moved = start;

    for (int i = 0; i < length; ++i, moved += increment)
        curve[i] = moved;
}

void GainRamp::applyToBlock (juce::AudioBuffer<float>& buffer, int numSamples,
                             float target) noexcept
{
    if (numSamples <= 0)
        return;

    const auto [start, end, length] = glide (numSamples, target);

    for (int channel = 0; channel < buffer.getNumChannels(); ++channel)
    {
        buffer.applyGainRamp (channel, 0, length, start, end);
        buffer.applyGain (channel, length, numSamples - length, target);
    }
}

} // namespace zembra
