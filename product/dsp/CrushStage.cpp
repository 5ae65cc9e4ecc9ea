// How the quantiser's scale follows its amount.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/CrushStage.h"

#include "framework/dsp/CurveMath.h"

void CrushStage::steer (float amount) noexcept
{
    if (amount != steadyAmount)
    {
        steadyAmount = amount;
        scale = std::pow (2.0f, 24.0f - std::pow (amount, 0.25f) * 23.0f) * 0.5f;
    }

    control.set (scale);
}

void CrushStage::steer (const zembra::Chunk& chunk, float amount, float depth,
                        const float* lfo) noexcept
{
    auto* const scales = control.move();

    for (int i = 0; i < chunk.length; ++i)
    {
        const auto root = zembra::fastFourthRoot ((1.0f - lfo[i] * depth) * amount);
        scales[i] = zembra::fastExp2 (24.0f - root * 22.999f) * 0.5f;
    }
}
