// How the length of the hold follows its amount.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/SampleHoldStage.h"

#include <cmath>

SampleHoldStage::SampleHoldStage()
{
    constexpr size_t usualChannels = 8;
    held.reserve (usualChannels);
    held.resize (1);
}

void SampleHoldStage::prepare (float sampleRate) noexcept
{
    longestHold = sampleRate / 100.0f - 1.0f;
    steadyAmount = -1.0f;
}

void SampleHoldStage::matchChannels (int numChannels)
{
    if (static_cast<size_t> (numChannels) > numHeldChannels)
        held.assign (static_cast<size_t> (numChannels), 0.0f);

    numHeldChannels = static_cast<size_t> (numChannels);
}

void SampleHoldStage::steer (float amount) noexcept
{
    if (amount != steadyAmount)
    {
        const auto step = 1.0f / (std::pow (amount, 3.0f) * longestHold + 1.0f);
        steadyAmount = amount;
        steadyLength = 1.0f / step;
    }

    holdLength.set (steadyLength);
}

void SampleHoldStage::steer (const zembra::Chunk& chunk, float amount, float depth,
                             const float* lfo) noexcept
{
    auto* const lengths = holdLength.move();

    for (int i = 0; i < chunk.length; ++i)
    {
        const auto moved = (1.0f - lfo[i] * depth) * amount;
        const auto step = 1.0f / (moved * moved * moved * longestHold + 1.0f);
        lengths[i] = 1.0f / step;
    }
}
