// Wave tables, stopping and starting of the LFO.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/ZembraLfo.h"

#include <algorithm>
#include <cmath>

namespace
{

/** One point of a wave, from 0 to 1. */
float getWavePoint (int wave, int i)
{
    const auto x = static_cast<float> (i);

    switch (wave)
    {
    case ZembraLfo::sine:
        return std::sin (x * 0.0009765625f * 6.2831855f) * 0.5f + 0.5f;
    case ZembraLfo::square:
        return i < 512 ? 1.0f : 0.0f;
    case ZembraLfo::triangle:
        if (i < 256)
            return 0.5f + x / 512.0f;
        if (i < 768)
            return 1.0f - (x - 256.0f) / 512.0f;
        return (x - 768.0f) / 512.0f;
    default:
        return x / 1023.0f;
    }
}

} // namespace

ZembraLfo::ZembraLfo() = default;

const std::array<ZembraLfo::WaveTable, ZembraLfo::numTableWaves>& ZembraLfo::getTables()
{
    static const auto built = []
    {
        std::array<WaveTable, numTableWaves> result;

        for (int wave = 0; wave < numTableWaves; ++wave)
            fillTable (wave, result[static_cast<size_t> (wave)]);

        return result;
    }();

    return built;
}

void ZembraLfo::fillTable (int wave, WaveTable& table)
{
    for (int i = 0; i < numPoints; ++i)
        table.points[static_cast<size_t> (i)] = getWavePoint (wave, i);

    table.points[numPoints] = table.points[0];

    for (size_t i = 0; i < numPoints; ++i)
        table.deltas[i] = table.points[i + 1] - table.points[i];

    table.deltas[numPoints] = table.deltas[0];
}

void ZembraLfo::prepare (float newSampleRate) noexcept
{
    sampleRate = newSampleRate;
    updateIncrement();
    randomValue.prepare (newSampleRate);
}

void ZembraLfo::updateIncrement() noexcept
{
    const auto perSample = rate * static_cast<float> (numPoints) / sampleRate;

    // A wild tempo may ask for more than a period per sample, and for no number at all.
    phaseIncrement =
        std::isfinite (perSample) ? std::fmod (static_cast<double> (perSample), numPoints) : 0.0;
}

void ZembraLfo::setWaveform (int newWaveform) noexcept
{
    waveform = newWaveform;

    if (juce::isPositiveAndBelow (waveform, numTableWaves))
        table = &tables[static_cast<size_t> (waveform)];
}

void ZembraLfo::setRate (float newRate) noexcept
{
    if (newRate == lastRate)
        return;

    lastRate = newRate;
    randomValue.setRate (newRate);
    rate = newRate;
    updateIncrement();

    if (rate == 0.0f)
        stop();
    else if (stopped)
        start();
}

void ZembraLfo::stop() noexcept
{
    if (ramp.target != 0.0f)
        ramp.setTarget (0.0f);

    stopped = true;
}

void ZembraLfo::start() noexcept
{
    rampingIn = true;
    stopped = false;

    if (ramp.target != lastOutput)
        ramp.setTarget (lastOutput);
}

void ZembraLfo::setPosition (float fractionOfPeriod) noexcept
{
    if (! std::isfinite (fractionOfPeriod))
        return;

    phase = static_cast<double> (fractionOfPeriod * static_cast<float> (numPoints));
    randomValue.setPosition (fractionOfPeriod);

    if (phase < 0.0)
        phase += numPoints;
}

void ZembraLfo::fill (float* out, int numSamples) noexcept
{
    auto* const end = out + numSamples;

    if (waveform == random)
        std::generate (out, end, [this] { return randomValue.next(); });
    else
        fillFromTable (fillGlide (out, end), end);
}

float* ZembraLfo::fillGlide (float* out, const float* end) noexcept
{
    for (; out != end && (lastRate == 0.0f || rampingIn); ++out)
    {
        *out = ramp.next();
        rampingIn = rampingIn && (lastRate == 0.0f || *out != lastOutput);
    }

    return out;
}

void ZembraLfo::fillFromTable (float* out, const float* end) noexcept
{
    if (out == end)
        return;

    const auto* const points = table->points.data();
    const auto* const deltas = table->deltas.data();
    const auto increment = phaseIncrement;
    auto position = phase;

    for (; out != end; ++out)
    {
        const auto index = static_cast<std::ptrdiff_t> (position);
        const auto fraction = static_cast<float> (position - static_cast<double> (index));
        *out = fraction * deltas[index] + points[index];
        position += increment;
        position = position >= numPoints ? position - numPoints : position;
    }

    phase = position;
    lastOutput = out[-1];
}

void ZembraLfo::Ramp::setTarget (float newTarget) noexcept
{
    target = newTarget;
    done = false;
    increment = (target - current) / static_cast<float> (steps);
}

float ZembraLfo::Ramp::next() noexcept
{
    if (done)
        return target;

    current += increment;

    if (std::abs (current - target) <= tolerance)
    {
        current = target;
        increment = 0.0f;
        done = true;
    }

    return current;
}
