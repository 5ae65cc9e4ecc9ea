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
    g4 = std::pow (coefficients.g, 4.0f);
    updateEstimateScale();
}

void VorloLowPassFilter::updateEstimateScale() noexcept
{
    estimateScale = 1.0f / (g4 * coefficients.feedback + 1.0f);
}

void VorloLowPassFilter::process (float* samples, int numSamples)
{
    for (int i = 0; i < numSamples; ++i)
        samples[i] = process (samples[i]);
}
