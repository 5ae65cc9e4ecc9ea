// The clock of the sample and hold.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/SampleHoldStage.h"

#include <cmath>

float SampleHoldStage::amountToStep (float amount) const noexcept
{
    return 1.0f / (std::pow (amount, 3.0f) * longestHold + 1.0f);
}

void SampleHoldStage::matchChannels (int numChannels)
{
    if (static_cast<size_t> (numChannels) > numHeldChannels)
        held.assign (static_cast<size_t> (numChannels), 0.0f);

    numHeldChannels = static_cast<size_t> (numChannels);
}

void SampleHoldStage::processSample (float* const* channels, int numChannels, int index,
                                     float step) noexcept
{
    counter -= 1.0f;
    const auto takesSample = counter <= 0.0f;

    if (takesSample)
        counter = 1.0f / step;

    for (int channel = 0; channel < numChannels; ++channel)
    {
        auto& value = held[static_cast<size_t> (channel)];
        auto& sample = channels[channel][index];

        if (takesSample)
            value = sample;
        else
            sample = value;
    }
}

void SampleHoldStage::process (juce::AudioBuffer<float>& buffer, int numSamples, float amount)
{
    const auto numChannels = buffer.getNumChannels();
    matchChannels (numChannels);
    const auto step = amountToStep (amount);
    auto* const* channels = buffer.getArrayOfWritePointers();

    for (int i = 0; i < numSamples; ++i)
        processSample (channels, numChannels, i, step);
}

void SampleHoldStage::process (juce::AudioBuffer<float>& buffer, int numSamples,
                               const float* amounts)
{
    const auto numChannels = buffer.getNumChannels();
    matchChannels (numChannels);
    auto* const* channels = buffer.getArrayOfWritePointers();

    for (int i = 0; i < numSamples; ++i)
        processSample (channels, numChannels, i, amountToStep (amounts[i]));
}
