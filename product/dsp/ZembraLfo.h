// The low-frequency oscillator: four wave tables and a stepped random value.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/RandGen.h"

#include <array>

/** Gives one value from 0 to 1 a sample. At rate 0 the table waves glide to 0 and from there back to
    where they stopped, over 512 samples; the random wave is held at 1. [audio thread]
*/
class ZembraLfo final
{
public:
    enum Wave : int
    {
        sine = 0,
        square = 1,
        triangle = 2,
        risingRamp = 3, ///< built with the others; no choice of the product selects it
        random = 4
    };

    ZembraLfo();

    void prepare (float newSampleRate) noexcept;

    /** Selects a wave by its number; the phase stays. */
    void setWaveform (int newWaveform) noexcept;

    /** Sets the rate in Hz, 0 to stop. */
    void setRate (float newRate) noexcept;

    /** Puts wave and random value at a place in their period; a negative one counts from its end. */
    void setPosition (float fractionOfPeriod) noexcept;

    /** Writes the next `numSamples` values. */
    void fill (float* out, int numSamples) noexcept;

    zembra::RandGen& getRandom() noexcept { return randomValue; }

private:
    static constexpr int numPoints = 1024;
    static constexpr int numTableWaves = 4;

    using Table = std::array<float, numPoints + 1>;

    struct WaveTable
    {
        Table points, deltas;
    };

    /** The glide between the wave and rest. */
    struct Ramp
    {
        static constexpr int steps = 512;
        static constexpr float tolerance = 0.01f;

        void setTarget (float newTarget) noexcept;
        float next() noexcept;

        float current = 0.0f;
        float target = 0.0f;
        float increment = 0.0f;
        bool done = true;
    };

    static const std::array<WaveTable, numTableWaves>& getTables();
    static void fillTable (int wave, WaveTable& table);

    void stop() noexcept;
    void start() noexcept;
    float* fillGlide (float* out, const float* end) noexcept;
    void fillFromTable (float* out, const float* end) noexcept;
    void updateIncrement() noexcept;

    const std::array<WaveTable, numTableWaves>& tables = getTables();
    const WaveTable* table = &tables[sine];
    float sampleRate = 44100.0f;
    float rate = 0.0f;
    double phase = 0.0;
    double phaseIncrement = 0.0;
    Ramp ramp;
    float lastOutput = 0.0f;
    float lastRate = -1.0f;
    bool rampingIn = false;
    bool stopped = false;
    int waveform = sine;
    zembra::RandGen randomValue{ 10.0f, 0.0f };

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ZembraLfo)
};
