// Coefficients and block loop of the low-pass ladder.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/VorloLowPassFilter.h"

#include <cmath>

VorloLowPassFilter::VorloLowPassFilter() : clipper (1e-5f) {}

void VorloLowPassFilter::prepare (float sampleRate, int)
{
    coefficients.prepare (sampleRate);
    updateEstimate();
    reset();
}

void VorloLowPassFilter::updateEstimate() noexcept
{
    g4 = std::pow (coefficients.tuning.g, 4.0f);
    updateEstimateScale();
}

void VorloLowPassFilter::updateEstimateScale() noexcept
{
    coefficients.tuning.estimate = 1.0f / (g4 * coefficients.tuning.feedback + 1.0f);
}

void VorloLowPassFilter::trace (const float* cutoffs, const float* resonances, int numSamples,
                                LadderTuning<zembra::Control>& controls) noexcept
{
    coefficients.trace (cutoffs, resonances, numSamples, controls);
    const auto* const g = controls.g.getCurve();
    const auto* const feedback = controls.feedback.getCurve();
    auto* const estimate = controls.estimate.move();

    for (int i = 0; i < numSamples; ++i)
    {
        const auto g2 = g[i] * g[i];
        estimate[i] = 1.0f / (g2 * g2 * feedback[i] + 1.0f);
    }

    coefficients.tuning.estimate = estimate[numSamples - 1];
}

void VorloLowPassFilter::process (float* samples, int numSamples)
{
    const auto tuning = coefficients.tuning;
    auto moved = state;

    for (int i = 0; i < numSamples; ++i)
        samples[i] = process (samples[i], tuning, moved, clipper);

    state = moved;
}
