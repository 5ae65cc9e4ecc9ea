// Set-up and block loop of the high-pass ladder.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/VorloHiPassFilter.h"

VorloHiPassFilter::VorloHiPassFilter() : clipper (1e-5f) {}

void VorloHiPassFilter::prepare (float sampleRate, int)
{
    coefficients.prepare (sampleRate);
    reset();
}

void VorloHiPassFilter::process (float* samples, int numSamples)
{
    for (int i = 0; i < numSamples; ++i)
        samples[i] = process (samples[i]);
}
