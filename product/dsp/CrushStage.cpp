// The quantiser.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/CrushStage.h"

#include <bit>
#include <cmath>
#include <cstdint>

namespace
{

/** The nearest whole number, ties to even: the sum with 1.5 * 2^52 leaves it in the low bits of the
    mantissa. What doesn't fit into 32 bits wraps, which is heard on very loud input.
*/
float roundWrapping (float x)
{
    const auto bits = std::bit_cast<std::uint64_t> (static_cast<double> (x) + 6755399441055744.0);
    return static_cast<float> (static_cast<std::int32_t> (static_cast<std::uint32_t> (bits)));
}

float quantise (float x, float scale) { return roundWrapping (scale * x) / scale; }

/** Half the number of steps: the grid covers -1 to 1. */
float bitsToScale (float bits) { return std::pow (2.0f, bits) * 0.5f; }

} // namespace

void CrushStage::process (juce::AudioBuffer<float>& buffer, int numSamples, float amount)
{
    const auto newBits = 24.0f - std::pow (amount, 0.25f) * 23.0f;

    if (newBits != bits)
    {
        bits = newBits;
        scale = bitsToScale (bits);
    }

    for (int channel = 0; channel < buffer.getNumChannels(); ++channel)
    {
        auto* samples = buffer.getWritePointer (channel);

        for (int i = 0; i < numSamples; ++i)
            samples[i] = quantise (samples[i], scale);
    }
}

void CrushStage::process (juce::AudioBuffer<float>& buffer, int numChannels, int numSamples,
                          const float* amounts)
{
    auto* const* channels = buffer.getArrayOfWritePointers();

    for (int i = 0; i < numSamples; ++i)
    {
        const auto modulatedScale = bitsToScale (24.0f - std::pow (amounts[i], 0.25f) * 22.999f);

        for (int channel = 0; channel < numChannels; ++channel)
            channels[channel][i] = quantise (channels[channel][i], modulatedScale);
    }
}
