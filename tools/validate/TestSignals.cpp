// The formulas of the sounds, and how two sounds are compared.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/validate/TestSignals.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace validate
{

namespace
{

/** A subnormal number of either sign, made of bits: arithmetic may flush it. */
float makeSubnormal (juce::Random& random)
{
    const auto size = 1u + static_cast<std::uint32_t> (random.nextInt (0x7fffff));
    return std::bit_cast<float> (size | (random.nextBool() ? 0x80000000u : 0u));
}

const TestSignal signals[] = {
    { "silence", [] (int, int, juce::Random&) { return 0.0f; } },
    { "impulses", [] (int i, int, juce::Random&) { return i % 997 == 0 ? 1.0f : 0.0f; } },
    { "full scale noise",
      [] (int, int, juce::Random& random) { return random.nextFloat() * 2.0f - 1.0f; } },
    { "alternating full scale",
      [] (int i, int, juce::Random&) { return i % 2 == 0 ? 1.0f : -1.0f; } },
    { "a slow square, twelve times full scale",
      [] (int i, int, juce::Random&) { return i % 400 < 200 ? 12.0f : -12.0f; } },
    { "a constant", [] (int, int channel, juce::Random&) { return channel == 0 ? 1.0f : -1.0f; } },
    { "a fade into nothing", [] (int i, int, juce::Random&)
      { return static_cast<float> (std::pow (0.97, i)) * (i % 2 == 0 ? 1.0f : -1.0f); } },
    { "tiny numbers",
      [] (int, int, juce::Random& random) { return (random.nextFloat() - 0.5f) * 1e-36f; } },
    { "denormal numbers", [] (int, int, juce::Random& random) { return makeSubnormal (random); } },
};

bool haveSameSize (const juce::AudioBuffer<float>& one, const juce::AudioBuffer<float>& other)
{
    return one.getNumChannels() == other.getNumChannels()
           && one.getNumSamples() == other.getNumSamples();
}

} // namespace

std::span<const TestSignal> getTestSignals() { return signals; }

juce::AudioBuffer<float> makeSignal (const TestSignal& signal, int numChannels, int numSamples)
{
    juce::AudioBuffer<float> buffer (numChannels, numSamples);
    juce::Random random (1);

    for (int channel = 0; channel < numChannels; ++channel)
        for (int i = 0; i < numSamples; ++i)
            buffer.setSample (channel, i, signal.getSample (i, channel, random));

    return buffer;
}

juce::AudioBuffer<float> makeNoise (int numChannels, int numSamples)
{
    juce::AudioBuffer<float> buffer (numChannels, numSamples);
    juce::Random random (2);

    for (int channel = 0; channel < numChannels; ++channel)
        for (int i = 0; i < numSamples; ++i)
            buffer.setSample (channel, i, random.nextFloat() - 0.5f);

    return buffer;
}

float getLargestDifference (const juce::AudioBuffer<float>& one,
                            const juce::AudioBuffer<float>& other)
{
    constexpr auto infinity = std::numeric_limits<float>::infinity();
    auto largest = haveSameSize (one, other) ? 0.0f : infinity;

    for (int channel = 0; largest < infinity && channel < one.getNumChannels(); ++channel)
        for (int i = 0; i < one.getNumSamples(); ++i)
        {
            const auto size = std::abs (one.getSample (channel, i) - other.getSample (channel, i));
            largest = size <= largest ? largest : std::isnan (size) ? infinity : size;
        }

    return largest;
}

double getRelativeDifference (const juce::AudioBuffer<float>& one,
                              const juce::AudioBuffer<float>& other)
{
    if (! haveSameSize (one, other))
        return std::numeric_limits<double>::infinity();

    auto difference = 0.0, all = 1e-12;

    for (int channel = 0; channel < one.getNumChannels(); ++channel)
        for (int i = 0; i < one.getNumSamples(); ++i)
        {
            const auto sample = static_cast<double> (one.getSample (channel, i));
            const auto distance = sample - static_cast<double> (other.getSample (channel, i));
            difference += distance * distance;
            all += sample * sample;
        }

    return std::sqrt (difference / all);
}

} // namespace validate
