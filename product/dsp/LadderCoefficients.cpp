// Tuning of the ladders.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/LadderCoefficients.h"

#include "framework/dsp/CurveMath.h"

namespace
{

constexpr float pi = 3.1415927f;

}

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
    targetCutoff = newCutoff;
    cutoff = std::min (newCutoff, nyquist);
    const auto t = 2.0f * std::tan (invSampleRate * pi * cutoff);
    tuning.g = t / (t + 2.0f);
    tuning.b = (t - 2.0f) / (t + 2.0f);
}

void LadderCoefficients::trace (const float* cutoffs, const float* resonances, int numSamples,
                                LadderTuning<zembra::Control>& controls) noexcept
{
    auto* const g = controls.g.move();
    auto* const b = controls.b.move();
    auto* const feedback = controls.feedback.move();
    const auto highest = nyquist;
    const auto radiansPerHertz = invSampleRate * pi;

    for (int i = 0; i < numSamples; ++i)
    {
        const auto limited = cutoffs[i] < highest ? cutoffs[i] : highest;
        const auto [n, d] = zembra::fastTangent (radiansPerHertz * limited);
        g[i] = n / (n + d);
        b[i] = (n - d) / (n + d);
    }

    for (int i = 0; i < numSamples; ++i)
        feedback[i] = resonances[i] * highestFeedback;

    // Where the curves end the filter stands; but no cutoff will be equal to this one.
    constexpr float inexact = -1.0f;
    const auto last = numSamples - 1;
    targetCutoff = cutoffs[last];
    cutoff = inexact;
    tuning.g = g[last];
    tuning.b = b[last];
    setResonance (resonances[last]);
}
