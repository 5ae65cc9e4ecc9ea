// A gain that glides to its target over a fixed number of samples.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/Control.h"
#include "framework/dsp/SampleMath.h"

#include <juce_audio_basics/juce_audio_basics.h>

#include <cmath>

namespace zembra
{

/** Glides over a block (linear over 256 samples) or by single samples (each closing 1/256 of the
    distance). All channels share the one gain. [audio thread]
*/
class GainRamp final
{
public:
    static constexpr int steps = 256;

    /** Moves a block on towards `target`, and steers the control through the first part of it, up to
        the end of the block or of the ramp. What then comes is steady: see rest().
    */
    void beginBlock (int numSamples, float target, Control& control) noexcept;

    /** Steers the control through what comes after the ramp of a block of more than 256 samples. */
    void rest (Control& control) const noexcept { control.set (gain); }

    /** Ramps every channel of the first `numSamples` samples towards `target`. */
    void applyToBlock (juce::AudioBuffer<float>& buffer, int numSamples, float target) noexcept;

    /** Moves one sample on towards `target`; returns the gain for that sample. */
    float advance (float target) noexcept { return advance (gain, target); }

    /** The step of one sample, for one gain or for several at a time. */
    template <typename Sample>
    static Sample advance (Sample& gain, Sample target) noexcept
    {
        const auto distance = target - gain;
        const auto moved = distance * Sample (1.0f / static_cast<float> (steps)) + gain;
        gain = unlessPositive (magnitude (distance) - Sample (closeEnough), target, moved);
        return moved;
    }

    float getGain() const noexcept { return gain; }
    void setGain (float newGain) noexcept { gain = newGain; }

private:
    struct Glide
    {
        float start, end;
        int length;
    };

    Glide glide (int numSamples, float target) noexcept;
    static bool isClose (float a, float b) noexcept { return std::abs (a - b) <= closeEnough; }

    static constexpr float closeEnough = 1e-5f;

    float gain = 1.0f;
};

static_assert (GainRamp::steps <= Control::maxFrames, "a ramp fits into one moving chunk");

} // namespace zembra
