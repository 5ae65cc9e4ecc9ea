// The drive, bit crush and sample hold stages of the reference engine.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ReferenceRamp.h"

#include <vector>

namespace reference
{

/** Soft-clip drive with a dry path beside it; amount 0 to 1 is up to 16 times input gain. */
class DriveStage
{
public:
    /** Whole block with one amount: two clip passes. */
    void processBlock (float* const* channels, int numChannels, int n, float newAmount);

    /** Sample i with its own amount: three clip passes. */
    void processSample (float* const* channels, int numChannels, int i, float newAmount);

private:
    void setAmount (float newAmount);

    GainRamp inputGain, dryGain, wetGain;
    float amount = 0.0f, dryLevel = 1.0f, preGain = 1.0f;
};

/** Bit-depth reducer. */
class CrushStage
{
public:
    /** Whole block with one amount, from 24 bits at 0 to 1 bit at 1. */
    void processBlock (float* const* channels, int numChannels, int n, float amount);

    /** Sample i with its own amount; 1 leaves slightly more than one bit. */
    static void processSample (float* const* channels, int numChannels, int i, float amount);

private:
    float bits = 24.0f, scale = 8388608.0f;
};

/** Sample-rate reducer: every channel keeps its sample for 1 / step samples. */
class SampleHoldStage
{
public:
    /** The step that an amount of 0 to 1 asks for: 1 at 0, 100 Hz at 1. */
    static float stepFor (float amount, float sampleRate);

    void processSample (float* const* channels, int numChannels, int i, float step);
    void restart() { counter = 1.0f; }

private:
    int heldChannels = 1;
    float counter = 1.0f;
    std::vector<float> held = std::vector<float> (1);
};

} // namespace reference
