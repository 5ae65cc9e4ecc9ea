// The block path and the per-sample path of the drive.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/DriveStage.h"

DriveStage::DriveStage (float asymmetry) : clipper (asymmetry) {}

void DriveStage::ensureCapacity (int numChannels, int numSamples)
{
    if (work.getNumChannels() < numChannels || work.getNumSamples() < numSamples)
        work.setSize (std::max (numChannels, work.getNumChannels()),
                      std::max (2 * numSamples, work.getNumSamples()));
}

void DriveStage::setAmount (float newAmount)
{
    if (newAmount == amount)
        return;

    amount = newAmount;
    preGain = std::pow (16.0f, amount);
    dryLevel = 1.0f - amount;
}

void DriveStage::process (juce::AudioBuffer<float>& buffer, int numSamples, float newAmount)
{
    setAmount (newAmount);
    ensureCapacity (buffer.getNumChannels(), numSamples);
    juce::AudioBuffer<float> driven (work.getArrayOfWritePointers(), buffer.getNumChannels(),
                                     numSamples);

    for (int channel = 0; channel < buffer.getNumChannels(); ++channel)
        driven.copyFrom (channel, 0, buffer, channel, 0, numSamples);

    inputGain.applyToBlock (driven, numSamples, preGain);

    for (int channel = 0; channel < driven.getNumChannels(); ++channel)
    {
        auto* samples = driven.getWritePointer (channel);

        for (int i = 0; i < numSamples; ++i)
            samples[i] = clipper.clip (clipper.clip (samples[i]));
    }

    dryGain.applyToBlock (buffer, numSamples, dryLevel);
    wetGain.applyToBlock (driven, numSamples, amount);

    for (int channel = 0; channel < buffer.getNumChannels(); ++channel)
        buffer.addFrom (channel, 0, driven, channel, 0, numSamples);
}

void DriveStage::process (juce::AudioBuffer<float>& buffer, int numChannels, int numSamples,
                          const float* amounts)
{
    auto* const* channels = buffer.getArrayOfWritePointers();

    for (int i = 0; i < numSamples; ++i)
    {
        setAmount (amounts[i]);
        const auto input = inputGain.advance (preGain);
        const auto dry = dryGain.advance (dryLevel);
        const auto wet = wetGain.advance (amount);

        for (int channel = 0; channel < numChannels; ++channel)
        {
            auto& x = channels[channel][i];
            const auto driven = clipper.clip (clipper.clip (clipper.clip (x * input)));
            x = x * dry + driven * wet;
        }
    }
}
