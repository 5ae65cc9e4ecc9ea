// The sample-rate reduction: a sample and hold with one clock for all channels.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/Chunk.h"
#include "framework/dsp/Control.h"
#include "framework/dsp/SampleMath.h"

#include <vector>

/** Holds each taken sample for 1 to rate / 100 samples, so that the effective rate falls from the
    sample rate to 100 Hz. The clock isn't fractional: a hold length is rounded up to a whole number.
    [audio thread]
*/
class SampleHoldStage final
{
public:
    /** The clock, and the sample that is held in each lane. */
    template <typename Sample>
    struct State
    {
        Sample counter, held;

        /** The stage's formula: a sample is taken when the counter has run out, and the counter then
            set to the length of the hold.
        */
        Sample process (Sample x, Sample holdLength) noexcept
        {
            using zembra::unlessPositive;
            counter = counter - Sample (1.0f);
            held = unlessPositive (counter, x, held);
            counter = unlessPositive (counter, holdLength, counter);
            return held;
        }
    };

    SampleHoldStage();

    /** The samples per held sample less one, at full amount. */
    void prepare (float sampleRate) noexcept;

    /** Lets the next sample be taken. */
    void restart() noexcept { counter = 1.0f; }

    /** Takes on the number of channels. When there are more than before, all that is held is
        forgotten. Allocates beyond eight.
    */
    void matchChannels (int numChannels);

    /** Steers a chunk by one amount, 0 to 1. */
    void steer (float amount) noexcept;

    /** Steers a chunk by an amount that the LFO lowers, sample by sample. */
    void steer (const zembra::Chunk& chunk, float amount, float depth, const float* lfo) noexcept;

    zembra::Control& getHoldLength() noexcept { return holdLength; }

    /** True while every sample passes. */
    bool isTransparent() const noexcept
    {
        return ! holdLength.isMoving() && holdLength.getValue() == 1.0f && counter <= 1.0f;
    }

    float getCounter() const noexcept { return counter; }
    void setCounter (float newCounter) noexcept { counter = newCounter; }
    float& getHeld (int channel) noexcept { return held[static_cast<size_t> (channel)]; }

private:
    zembra::Control holdLength;
    float longestHold = 0.0f;
    float steadyAmount = -1.0f;
    float steadyLength = 1.0f;
    float counter = 1.0f;
    std::vector<float> held;
    size_t numHeldChannels = 1;
};
