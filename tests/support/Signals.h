// Test signals and measurements.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <cmath>

namespace signals
{

/** Noise bursts, silence and a sweep, different in each channel, peaks up to `level`. */
inline juce::AudioBuffer<float> makeBusySignal (int numChannels, int numSamples, float level)
{
    juce::AudioBuffer<float> buffer (numChannels, numSamples);
    juce::Random random (1234);

    for (int channel = 0; channel < numChannels; ++channel)
    {
        auto phase = 0.1 * channel;

        for (int i = 0; i < numSamples; ++i)
        {
            const auto sweep = std::sin (phase += 0.001 + 0.8 * i / numSamples);
            const auto section = (i / 3000) % 4;
            const auto noise = random.nextFloat() * 2.0f - 1.0f;
            const auto x = section == 0   ? static_cast<float> (sweep)
                           : section == 1 ? noise
                           : section == 2 ? 0.0f
                                          : 0.3f * static_cast<float> (sweep) + 0.1f * noise;
            buffer.setSample (channel, i, level * x);
        }
    }

    return buffer;
}

inline juce::AudioBuffer<float> makeSine (int numChannels, int numSamples, double frequency,
                                          double sampleRate, float level)
{
    juce::AudioBuffer<float> buffer (numChannels, numSamples);
    const auto step = juce::MathConstants<double>::twoPi * frequency / sampleRate;

    for (int channel = 0; channel < numChannels; ++channel)
        for (int i = 0; i < numSamples; ++i)
            buffer.setSample (channel, i, level * static_cast<float> (std::sin (step * i)));

    return buffer;
}

inline juce::AudioBuffer<float> makeConstant (int numChannels, int numSamples, float value)
{
    juce::AudioBuffer<float> buffer (numChannels, numSamples);

    for (int channel = 0; channel < numChannels; ++channel)
        juce::FloatVectorOperations::fill (buffer.getWritePointer (channel), value, numSamples);

    return buffer;
}

/** The level in dB of the part of a buffer that begins at `start`. */
inline double getLevel (const juce::AudioBuffer<float>& buffer, int channel, int start)
{
    const auto rms = buffer.getRMSLevel (channel, start, buffer.getNumSamples() - start);
    return 20.0 * std::log10 (static_cast<double> (rms) + 1e-30);
}

} // namespace signals
