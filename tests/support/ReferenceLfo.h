// The modulation source of the reference engine: table oscillator, random steps, smoother.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <functional>

namespace reference
{

/** The waveform number of random steps; the table waves are 0 to 2. */
constexpr int randomWaveform = 4;

/** Random values 0 to 1 that step at a rate in Hz. */
struct RandGen
{
    void prepare (float newSampleRate) { invSampleRate = 1.0f / newSampleRate; }
    void setRate (float newRate);
    float next();

    std::function<float()> nextRandom;
    float invSampleRate = 0.0f, rate = 10.0f, period = 0.1f, value = 0.0f, time = 0.0f;
};

/** Table oscillator 0 to 1 that glides to 0 when its rate becomes 0, and back in after that. */
class ReferenceLfo
{
public:
    ReferenceLfo();
    void prepare (float newSampleRate);
    void setWaveform (int newWaveform);
    void setRate (float newRate);

    /** Sets the position in the cycle, -1 to 1. */
    void lockPhase (float cycleFraction);

    /** The next value of the selected waveform. */
    float next() { return waveform == randomWaveform ? random.next() : nextFromTable(); }

    RandGen random;

private:
    static constexpr int tableSize = 1024;
    using Table = std::array<float, tableSize + 1>;

    struct Glide
    {
        float next();

        float current = 0.0f, target = 0.0f, increment = 0.0f;
        bool done = true;
    };

    void glideTo (float target);
    float nextFromTable();

    std::array<Table, 3> tables{}, deltas{};
    Glide ramp;
    float sampleRate = 0.0f, rate = 0.0f, lastOutput = 0.0f, stopRate = -1.0f, lastRate = -1.0f;
    double phase = 0.0, phaseIncrement = 0.0;
    size_t waveIndex = 0;
    int waveform = 0;
    bool rampingIn = false, stopped = false;
};

/** Second-order Butterworth low-pass in transposed direct form II, snapped to 0 after a block. */
class ControlSmoother
{
public:
    /** Rate and cutoff in Hz. */
    void prepare (double sampleRate, double frequency);
    void reset() { v1 = v2 = 0.0f; }
    void process (float* samples, int n);

private:
    float c0 = 1.0f, c1 = 0.0f, c2 = 0.0f, c3 = 0.0f, c4 = 0.0f;
    float v1 = 0.0f, v2 = 0.0f;
};

} // namespace reference
