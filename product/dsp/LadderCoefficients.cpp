// Tuning of the ladders.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/LadderCoefficients.h"

#include <algorithm>
#include <cmath>

void LadderCoefficients::prepare (float newSampleRate) noexcept
{
    if (newSampleRate == sampleRate)
        return;

    sampleRate = newSampleRate;
    nyquist = sampleRate / 2.0f;
    invSampleRate = 1.0f / sampleRate;
    tune (targetCutoff);
}

void LadderCoefficients::tune (float newCutoff) noexcept
{
    constexpr float pi = 3.1415927f;

    targetCutoff = newCutoff;
    cutoff = std::min (newCutoff, nyquist);
    const auto t = 2.0f * std::tan (invSampleRate * pi * cutoff);
    g = t / (t + 2.0f);
    b = (t - 2.0f) / (t + 2.0f);
}
