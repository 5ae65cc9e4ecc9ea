// Small numeric companions of the reference engine: gain ramp, value smoother, soft clip, rounding.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace reference
{

/** Nearest integer, ties to even: the low 32 bits of value + 1.5 * 2^52 in double precision. */
std::int32_t roundToInt (double value);

/** Cubic-rational soft clip with a slight asymmetry; the result lies between -1 and 1. */
float softClip (float x);

/** Multiplies n samples by gains from start (first sample) towards end, by repeated addition. */
void applyGainRamp (float* samples, int n, float start, float end);

/** A gain that glides to its target: linear in a block, exponential when stepped by the sample. */
struct GainRamp
{
    int steps = 256;
    float gain = 1.0f;

    /** Glides a block of n samples of every channel towards target. */
    void applyBlock (float* const* channels, int numChannels, int n, float target);

    /** The multiplier of one sample; closes 1/steps of the distance to target. */
    float nextStep (float target);
};

/** A control value that reaches its target in a fixed number of equal steps. */
struct LinearSmoother
{
    int steps = 128;
    float current = 0.0f, target = 0.0f, increment = 0.0f;
    bool done = true;

    void setTarget (float newTarget);
    void fill (float* out, int n);
};

} // namespace reference
