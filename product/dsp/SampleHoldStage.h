// The sample-rate reduction: a sample and hold with one clock for all channels.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <vector>

/** Holds each taken sample for 1 to rate / 100 samples, so that the effective rate falls from the
    sample rate to 100 Hz. The clock isn't fractional: a hold length is rounded up to a whole number.
    [audio thread]
*/
class SampleHoldStage final
{
public:
    /** The samples per held sample less one, at full amount. */
    void prepare (float sampleRate) noexcept { longestHold = sampleRate / 100.0f - 1.0f; }

    /** Lets the next sample be taken. */
    void restart() noexcept { counter = 1.0f; }

    /** Holds a whole block by one amount, 0 to 1. */
    void process (juce::AudioBuffer<float>& buffer, int numSamples, float amount);

    /** Holds a block by an amount per sample, 0 to 1. Allocates when channels beyond two
        were added.
    */
    void process (juce::AudioBuffer<float>& buffer, int numSamples, const float* amounts);

private:
    float amountToStep (float amount) const noexcept;
    void matchChannels (int numChannels);
    void processSample (float* const* channels, int numChannels, int index, float step) noexcept;

    float longestHold = 0.0f;
    float counter = 1.0f;
    std::vector<float> held = std::vector<float> (2); ///< room for stereo from the start
    size_t numHeldChannels = 1;
};
