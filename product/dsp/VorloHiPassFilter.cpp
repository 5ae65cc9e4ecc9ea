// Coefficients and block loop of the high-pass ladder.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/VorloHiPassFilter.h"

namespace
{

/** What the estimate of the output is divided by. */
float getDivisor (float g, float feedback)
{
    const auto h = 1.0f - g;
    return h * h * h * h * feedback + 1.0f;
}

} // namespace

VorloHiPassFilter::VorloHiPassFilter() : clipper (1e-5f) {}

void VorloHiPassFilter::prepare (float sampleRate, int)
{
    coefficients.prepare (sampleRate);
    updateEstimate();
    reset();
}

void VorloHiPassFilter::updateEstimate() noexcept
{
    auto& tuning = coefficients.tuning;
    tuning.estimate = getDivisor (tuning.g, tuning.feedback);
}

void VorloHiPassFilter::trace (const float* cutoffs, const float* resonances, int numSamples,
                               LadderTuning<zembra::Control>& controls) noexcept
{
    coefficients.trace (cutoffs, resonances, numSamples, controls);
    const auto* const g = controls.g.getCurve();
    const auto* const feedback = controls.feedback.getCurve();
    auto* const estimate = controls.estimate.move();

    for (int i = 0; i < numSamples; ++i)
        estimate[i] = getDivisor (g[i], feedback[i]);

    coefficients.tuning.estimate = estimate[numSamples - 1];
}

void VorloHiPassFilter::process (float* samples, int numSamples)
{
    const auto tuning = coefficients.tuning;
    auto moved = state;

    for (int i = 0; i < numSamples; ++i)
        samples[i] = process (samples[i], tuning, moved, clipper);

    state = moved;
}
