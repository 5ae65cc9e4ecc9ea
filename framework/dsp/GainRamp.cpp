// The block form of the gain ramp.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/dsp/GainRamp.h"

namespace zembra
{

void GainRamp::applyToBlock (juce::AudioBuffer<float>& buffer, int numSamples,
                             float target) noexcept
{
    if (numSamples <= 0)
        return;

    const auto isShort = numSamples < steps;
    const auto part = static_cast<float> (numSamples) / static_cast<float> (steps);
    const auto end = isShort ? part * (target - gain) + gain : target;
    const auto rampLength = std::min (numSamples, steps);

    for (int channel = 0; channel < buffer.getNumChannels(); ++channel)
    {
        buffer.applyGainRamp (channel, 0, rampLength, gain, end);
        buffer.applyGain (channel, rampLength, numSamples - rampLength, target);
    }

    gain = isShort && ! isClose (gain, target) ? end : target;
}

} // namespace zembra
