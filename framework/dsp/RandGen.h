// A stepped random value: sample and hold of noise at a rate.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

namespace zembra
{

/** Gives a new random value in 0 to 1 at a rate in Hz and holds it in between. [audio thread] */
class RandGen
{
public:
    RandGen (float initialRate, float initialValue);
    virtual ~RandGen() = default;

    void prepare (float newSampleRate) noexcept;

    /** Sets the rate in Hz. At 0 the output is held at 1 and the period stays as it was. */
    void setRate (float newRate) noexcept;

    /** Puts the generator at a place in its period, from 0 to 1. */
    void setPosition (float fractionOfPeriod) noexcept { time = fractionOfPeriod * period; }

    /** Makes the sequence repeatable. */
    void setSeed (juce::int64 seed) noexcept { generator.setSeed (seed); }

    float next() noexcept
    {
        if (rate == 0.0f)
            return 1.0f;

        if (time >= period)
        {
            time = 0.0f;
            value = generator.nextFloat();
        }

        time += invSampleRate;
        return value;
    }

private:
    float invSampleRate = 1.0f / 44100.0f;
    float rate, period, value;
    float time = 0.0f;
    juce::Random generator;
};

} // namespace zembra
