// The drive: a soft clipper behind a gain, blended with the clean signal.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/GainRamp.h"
#include "framework/dsp/SoftClipper.h"

/** y = (1 - d) x + d clip(...clip(16^d x)), each factor gliding; transparent at d = 0.

    A steady amount clips twice, a modulated one three times: the two sound different on purpose.
    [audio thread]
*/
class DriveStage final
{
public:
    explicit DriveStage (float asymmetry);

    /** Makes room for blocks of `numSamples` samples. */
    void ensureCapacity (int numChannels, int numSamples);

    /** Drives a whole block by one amount, 0 to 1. Allocates only for a block longer than any
        announced one.
    */
    void process (juce::AudioBuffer<float>& buffer, int numSamples, float newAmount);

    /** Drives a block by an amount per sample, 0 to 1. */
    void process (juce::AudioBuffer<float>& buffer, int numChannels, int numSamples,
                  const float* amounts);

private:
    void setAmount (float newAmount);

    zembra::SoftClipper clipper;
    zembra::GainRamp inputGain, dryGain, wetGain;
    juce::AudioBuffer<float> work;
    float amount = 0.0f;
    float dryLevel = 1.0f;
    float preGain = 1.0f;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (DriveStage)
};
