// A gain that glides to its target over a fixed number of samples.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <cmath>

namespace zembra
{

/** Applies a gain to a block (linear over 256 samples) or to single samples (each closing 1/256 of
    the distance). All channels share the one gain.
*/
class GainRamp final
{
public:
    /** Ramps every channel of the first `numSamples` samples towards `target`. [audio thread] */
    void applyToBlock (juce::AudioBuffer<float>& buffer, int numSamples, float target) noexcept;

    /** Moves one sample on towards `target`; returns the gain for that sample. [audio thread] */
    float advance (float target) noexcept
    {
        if (gain == target)
            return target;

        const auto moved = (target - gain) / static_cast<float> (steps) + gain;
        gain = isClose (gain, target) ? target : moved;
        return moved;
    }

    float getGain() const noexcept { return gain; }
    void setGain (float newGain) noexcept { gain = newGain; }

    static constexpr int steps = 256;

private:
    static bool isClose (float a, float b) noexcept { return std::abs (a - b) <= 1e-5f; }

    float gain = 1.0f;
};

} // namespace zembra
