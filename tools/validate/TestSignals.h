// The sounds that an instance has to stand.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <span>

namespace validate
{

struct TestSignal
{
    const char* name;
    float (*getSample) (int index, int channel, juce::Random& random);
};

/** Silence, impulses, noise, squares, constants, fades, tiny and denormal numbers: all finite. */
std::span<const TestSignal> getTestSignals();

juce::AudioBuffer<float> makeSignal (const TestSignal& signal, int numChannels, int numSamples);

/** Noise at half scale, the same each time. */
juce::AudioBuffer<float> makeNoise (int numChannels, int numSamples);

/** The largest difference of two samples, infinite if the sizes differ; NaN counts as infinite. */
float getLargestDifference (const juce::AudioBuffer<float>& one,
                            const juce::AudioBuffer<float>& other);

/** The root of the mean square of the difference, as a part of that of `one`. */
double getRelativeDifference (const juce::AudioBuffer<float>& one,
                              const juce::AudioBuffer<float>& other);

} // namespace validate
