// How the drive's factors follow its amount.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/DriveStage.h"

#include "framework/dsp/CurveMath.h"

DriveStage::DriveStage (float asymmetry) : clipper (asymmetry) {}

void DriveStage::setAmount (float newAmount) noexcept
{
    if (newAmount == amount)
        return;

    amount = newAmount;
    preGain = std::pow (16.0f, amount);
    dryLevel = 1.0f - amount;
}

void DriveStage::steer (const zembra::Chunk& chunk, float newAmount) noexcept
{
    auto& [input, dry, wet] = controls;

    if (chunk.isFirst())
    {
        setAmount (newAmount);
        inputGain.beginBlock (chunk.blockLength, preGain, input);
        dryGain.beginBlock (chunk.blockLength, dryLevel, dry);
        wetGain.beginBlock (chunk.blockLength, amount, wet);
    }
    else
    {
        inputGain.rest (input);
        dryGain.rest (dry);
        wetGain.rest (wet);
    }

    const auto isTransparent = dry.isSteadyAt (1.0f) && wet.isSteadyAt (0.0f);
    mode = isTransparent ? Mode::nothing : Mode::steered;
}

void DriveStage::steer (const zembra::Chunk& chunk, float newAmount, float depth,
                        const float* lfo) noexcept
{
    const auto reach = newAmount * depth;
    auto* const out = targets.data();

    for (int i = 0; i < chunk.length; ++i)
    {
        const auto pulled = newAmount - lfo[i] * reach;
        out[i] = { zembra::fastExp2 (4.0f * pulled), 1.0f - pulled, pulled, pulled };
    }

    mode = Mode::pulled;

    // A steady amount takes its factors anew, from the library's exact function.
    amount = -1.0f;
}

DriveStage::Factors DriveStage::getFactors() const noexcept
{
    return { inputGain.getGain(), dryGain.getGain(), wetGain.getGain(), 0.0f };
}

void DriveStage::setFactors (const Factors& reached) noexcept
{
    inputGain.setGain (reached.input);
    dryGain.setGain (reached.dry);
    wetGain.setGain (reached.wet);
}
