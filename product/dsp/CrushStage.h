// The bit crush: rounding to a number of bits that need not be whole.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

/** Rounds each sample to a grid of 2^bits steps over -1 to 1, from 24 bits down to about one.
    It always runs: at amount 0 the signal is still rounded to 24 bits. [audio thread]
*/
class CrushStage final
{
public:
    /** Rounds a whole block by one amount, 0 to 1. */
    void process (juce::AudioBuffer<float>& buffer, int numSamples, float amount);

    /** Rounds a block by an amount per sample, 0 to 1. A modulated amount ends just above one bit. */
    static void process (juce::AudioBuffer<float>& buffer, int numChannels, int numSamples,
                         const float* amounts);

private:
    float bits = 24.0f;
    float scale = 8388608.0f;
};
