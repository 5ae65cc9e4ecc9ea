// The modulation source of the reference engine: table oscillator, random steps, smoother.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReferenceLfo.h"

#include <cmath>

namespace reference
{

void RandGen::setRate (float newRate)
{
    if (newRate == rate)
        return;

    rate = newRate;

    if (newRate != 0.0f)
        period = 1.0f / newRate;
}

float RandGen::next()
{
    if (rate == 0.0f)
        return 1.0f;

    if (time >= period)
    {
        time = 0.0f;
        value = nextRandom();
    }

    time += invSampleRate;
    return value;
}

static float sinePoint (int i)
{
    return std::sin (static_cast<float> (i) * 0.0009765625f * 6.2831855f) * 0.5f + 0.5f;
}

static float trianglePoint (int i)
{
    const auto offset = static_cast<float> (i % 256) / 512.0f;

    switch (i / 256)
    {
    case 0:
        return 0.5f + offset;
    case 1:
        return 1.0f - offset;
    case 2:
        return 0.5f - offset;
    default:
        return offset;
    }
}

ReferenceLfo::ReferenceLfo()
{
    for (int i = 0; i <= tableSize; ++i)
    {
        const auto point = i % tableSize;
        const auto at = static_cast<size_t> (i);
        tables[0][at] = sinePoint (point);
        tables[1][at] = point < 512 ? 1.0f : 0.0f;
        tables[2][at] = trianglePoint (point);
    }

    for (size_t wave = 0; wave < tables.size(); ++wave)
    {
        for (size_t i = 0; i < tableSize; ++i)
            deltas[wave][i] = tables[wave][i + 1] - tables[wave][i];

        deltas[wave][tableSize] = deltas[wave][0];
    }
}

void ReferenceLfo::prepare (float newSampleRate)
{
    sampleRate = newSampleRate;
    phaseIncrement = static_cast<double> (rate * 1024.0f / sampleRate);
    random.prepare (newSampleRate);
}

void ReferenceLfo::setWaveform (int newWaveform)
{
    waveform = newWaveform;

    if (newWaveform != randomWaveform)
        waveIndex = static_cast<size_t> (newWaveform);
}

void ReferenceLfo::lockPhase (float cycleFraction)
{
    phase = static_cast<double> (cycleFraction * 1024.0f);
    random.time = cycleFraction * random.period;
}

void ReferenceLfo::glideTo (float target)
{
    ramp.target = target;
    ramp.done = false;
    ramp.increment = (target - ramp.current) / 512.0f;
}

void ReferenceLfo::setRate (float newRate)
{
    if (newRate == lastRate)
        return;

    lastRate = newRate;
    random.setRate (newRate);

    if (newRate == stopRate)
        return;

    stopRate = newRate;

    if (newRate != rate)
    {
        rate = newRate;
        phaseIncrement = static_cast<double> (newRate * 1024.0f / sampleRate);
    }

    if (newRate == 0.0f)
    {
        if (ramp.target != 0.0f)
            glideTo (0.0f);

        stopped = true;
    }
    else if (stopped)
    {
        rampingIn = true;

        if (ramp.target != lastOutput)
            glideTo (lastOutput);

        stopped = false;
    }
}

float ReferenceLfo::Glide::next()
{
    if (done)
        return target;

    current += increment;

    if (std::abs (current - target) <= 0.01f)
    {
        current = target;
        increment = 0.0f;
        done = true;
    }

    return current;
}

// A position outside the table (before the song's start it is negative) is read periodically.
static size_t tableIndex (double position)
{
    if (position < 0.0 || position > 1024.0)
        position -= std::floor (position / 1024.0) * 1024.0;

    return static_cast<size_t> (position);
}

float ReferenceLfo::nextFromTable()
{
    if (stopRate == 0.0f)
        return ramp.next();

    if (rampingIn)
    {
        const auto value = ramp.next();
        rampingIn = value != lastOutput;
        return value;
    }

    const auto whole = std::floor (phase);
    const auto fraction = phase - whole;
    const auto i = tableIndex (whole);
    phase += phaseIncrement;

    if (phase >= 1024.0)
        phase -= 1024.0;
    else if (phase < 0.0)
        phase += 1024.0;

    const auto delta = static_cast<double> (deltas[waveIndex][i]);
    lastOutput = static_cast<float> (fraction * delta + static_cast<double> (tables[waveIndex][i]));
    return lastOutput;
}

void ControlSmoother::prepare (double sampleRate, double frequency)
{
    const double q = 1.0 / 1.4142135623730950488;
    const double n = 1.0 / std::tan (3.141592653589793238 * frequency / sampleRate);
    const double nSquared = n * n;
    const double scale = 1.0 / (1.0 + 1.0 / q * n + nSquared);

    c0 = static_cast<float> (scale);
    c1 = static_cast<float> (scale * 2.0);
    c2 = static_cast<float> (scale);
    c3 = static_cast<float> (scale * 2.0 * (1.0 - nSquared));
    c4 = static_cast<float> (scale * (1.0 - 1.0 / q * n + nSquared));
}

static float snapToZero (float x) { return x < -1.0e-8f || x > 1.0e-8f ? x : 0.0f; }

void ControlSmoother::process (float* samples, int n)
{
    for (int i = 0; i < n; ++i)
    {
        const auto in = samples[i];
        const auto out = c0 * in + v1;
        samples[i] = out;
        v1 = c1 * in - c3 * out + v2;
        v2 = c2 * in - c4 * out;
    }

    v1 = snapToZero (v1);
    v2 = snapToZero (v2);
}

} // namespace reference
