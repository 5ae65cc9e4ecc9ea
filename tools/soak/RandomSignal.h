// An input signal that changes its kind at random, repeatable from a seed.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

namespace soak
{

/** Writes stretches of tones, noise, clicks, constants, silence and near silence (down to denormal
    numbers), a different one every few thousand samples. Every sample is finite and at most as loud
    as the level.
*/
class RandomSignal final
{
public:
    RandomSignal (juce::int64 seed, float levelToUse) noexcept : random (seed), level (levelToUse)
    {
    }

    /** Writes the first `numSamples` samples of every channel. */
    void fill (juce::AudioBuffer<float>& buffer, int numSamples) noexcept;

private:
    enum Kind
    {
        silence,
        tone,
        noise,
        clicks,
        constant,
        square,
        denormals,
        numKinds
    };

    void beginStretch() noexcept;
    float next (int channel) noexcept;

    juce::Random random;
    const float level;
    Kind kind = silence;
    int samplesLeft = 0;
    float amplitude = 0.0f;
    double phase = 0.0, step = 0.0;
};

} // namespace soak
