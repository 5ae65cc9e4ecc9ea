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
    auto& [input, dry, wet, numClips] = controls;

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

    const auto isTransparent = ! dry.isMoving() && dry.getValue() == 1.0f && ! wet.isMoving()
                               && wet.getValue() == 0.0f;
    numClips = isTransparent ? 0 : 2;
}

void DriveStage::steer (const zembra::Chunk& chunk, float newAmount, float depth, const float* lfo) noexcept
{
    auto* const input = controls.input.move();
    auto* const dry = controls.dry.move();
    auto* const wet = controls.wet.move();
    controls.numClips = 3;

    for (int i = 0; i < chunk.length; ++i)
    {
        wet[i] = newAmount - lfo[i] * (newAmount * depth);
        dry[i] = 1.0f - wet[i];
        input[i] = zembra::fastExp2 (4.0f * wet[i]);
    }

    for (int i = 0; i < chunk.length; ++i)
    {
        input[i] = inputGain.advance (input[i]);
        dry[i] = dryGain.advance (dry[i]);
        wet[i] = wetGain.advance (wet[i]);
    }

    // A steady amount takes its factors anew, from the library's exact function.
    amount = -1.0f;
}
