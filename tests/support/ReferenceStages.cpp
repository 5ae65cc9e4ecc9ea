// The drive, bit crush and sample hold stages of the reference engine.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReferenceStages.h"

#include <cmath>

namespace reference
{

void DriveStage::setAmount (float newAmount)
{
    if (newAmount == amount)
        return;

    amount = newAmount;
    preGain = std::pow (16.0f, newAmount);
    dryLevel = 1.0f - newAmount;
}

void DriveStage::processBlock (float* const* channels, int numChannels, int n, float newAmount)
{
    setAmount (newAmount);
    std::vector<std::vector<float>> work;
    std::vector<float*> pointers;

    for (int c = 0; c < numChannels; ++c)
        work.emplace_back (channels[c], channels[c] + n);

    for (auto& channel : work)
        pointers.push_back (channel.data());

    inputGain.applyBlock (pointers.data(), numChannels, n, preGain);

    for (auto& channel : work)
        for (auto& sample : channel)
            sample = softClip (softClip (sample));

    dryGain.applyBlock (channels, numChannels, n, dryLevel);
    wetGain.applyBlock (pointers.data(), numChannels, n, amount);

    for (int c = 0; c < numChannels; ++c)
        for (int i = 0; i < n; ++i)
            channels[c][i] += pointers[static_cast<size_t> (c)][i];
}

void DriveStage::processSample (float* const* channels, int numChannels, int i, float newAmount)
{
    setAmount (newAmount);
    const auto input = inputGain.nextStep (preGain);
    const auto dry = dryGain.nextStep (dryLevel);
    const auto wet = wetGain.nextStep (amount);

    for (int c = 0; c < numChannels; ++c)
    {
        auto& sample = channels[c][i];
        const auto clipped = softClip (softClip (softClip (sample * input)));
        sample = sample * dry + clipped * wet;
    }
}

static float quantise (float sample, float scale)
{
    return static_cast<float> (roundToInt (scale * sample)) / scale;
}

void CrushStage::processBlock (float* const* channels, int numChannels, int n, float amount)
{
    const auto newBits = 24.0f - std::pow (amount, 0.25f) * 23.0f;

    if (newBits != bits)
    {
        bits = newBits;
        scale = std::pow (2.0f, bits) * 0.5f;
    }

    for (int c = 0; c < numChannels; ++c)
        for (int i = 0; i < n; ++i)
            channels[c][i] = quantise (channels[c][i], scale);
}

void CrushStage::processSample (float* const* channels, int numChannels, int i, float amount)
{
    const auto sampleBits = 24.0f - std::pow (amount, 0.25f) * 22.999f;
    const auto sampleScale = std::pow (2.0f, sampleBits) * 0.5f;

    for (int c = 0; c < numChannels; ++c)
        channels[c][i] = quantise (channels[c][i], sampleScale);
}

float SampleHoldStage::stepFor (float amount, float sampleRate)
{
    const auto rateDown = sampleRate / 100.0f - 1.0f;
    return 1.0f / (std::pow (amount, 3.0f) * rateDown + 1.0f);
}

void SampleHoldStage::processSample (float* const* channels, int numChannels, int i, float step)
{
    if (numChannels > heldChannels)
        held.assign (static_cast<size_t> (numChannels), 0.0f);

    heldChannels = numChannels;
    counter = counter - 1.0f;
    const bool takesNew = counter <= 0.0f;

    if (takesNew)
        counter = 1.0f / step;

    for (int c = 0; c < numChannels; ++c)
    {
        auto& heldSample = held[static_cast<size_t> (c)];

        if (takesNew)
            heldSample = channels[c][i];
        else
            channels[c][i] = heldSample;
    }
}

} // namespace reference
