// The stretches of the random input signal.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/soak/RandomSignal.h"

#include <cmath>

namespace soak
{

void RandomSignal::beginStretch() noexcept
{
    kind = static_cast<Kind> (random.nextInt (numKinds));
    samplesLeft = 100 + random.nextInt (8000);
    amplitude = level * std::pow (10.0f, -3.0f * random.nextFloat());
    step = std::pow (10.0, -4.0 * random.nextDouble()) * juce::MathConstants<double>::pi;
}

float RandomSignal::next (int channel) noexcept
{
    switch (kind)
    {
    case tone:
        return amplitude * static_cast<float> (std::sin (phase + 0.3 * channel));
    case noise:
        return amplitude * (random.nextFloat() * 2.0f - 1.0f);
    case clicks:
        return random.nextInt (500) == 0 ? level : 0.0f;
    case constant:
        return channel == 0 ? amplitude : -amplitude;
    case square:
        return std::sin (phase) > 0.0 ? amplitude : -amplitude;
    case denormals:
        return 1e-39f * (random.nextFloat() * 2.0f - 1.0f);
    case silence:
    case numKinds:
        break;
    }

    return 0.0f;
}

void RandomSignal::fill (juce::AudioBuffer<float>& buffer, int numSamples) noexcept
{
    for (int i = 0; i < numSamples; ++i)
    {
        if (--samplesLeft < 0)
            beginStretch();

        phase = std::fmod (phase + step, juce::MathConstants<double>::twoPi);

        for (int channel = 0; channel < buffer.getNumChannels(); ++channel)
            buffer.setSample (channel, i, next (channel));
    }
}

} // namespace soak
