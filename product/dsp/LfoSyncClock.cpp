// Conversions between note lengths, tempo and rate.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/LfoSyncClock.h"

#include <algorithm>
#include <cmath>

float LfoSyncClock::getBeats (int num, int den) const noexcept
{
    return static_cast<float> (num) * static_cast<float> (timeSigDenominator)
           / static_cast<float> (den);
}

float LfoSyncClock::getPeriodInBeats() const noexcept { return getBeats (numerator, denominator); }

void LfoSyncClock::setSynced (bool shouldBeSynced) noexcept
{
    if (synced == shouldBeSynced)
        return;

    synced = shouldBeSynced;

    if (shouldBeSynced)
    {
        takeNearestDivision (1.0f / std::max (lfoRate.get(), 1e-5f));
        adopt();
    }

    update();
}

void LfoSyncClock::takeNearestDivision (float period) noexcept
{
    const auto secondsPerBeat = static_cast<float> (60.0 / tempo);
    auto smallest = 1e6f;

    for (auto division = lfoDivisions.rbegin(); division != lfoDivisions.rend(); ++division)
    {
        const auto candidate =
            getBeats (division->numerator, division->denominator) * secondsPerBeat;
        const auto difference = std::abs (candidate - period);

        if (difference < smallest)
        {
            smallest = difference;
            numerator = division->numerator;
            denominator = division->denominator;
        }
    }
}

void LfoSyncClock::setDivision (LfoDivision division) noexcept
{
    if (! synced || (numerator == division.numerator && denominator == division.denominator))
        return;

    numerator = division.numerator;
    denominator = division.denominator;
    adopt();
    update();
}

void LfoSyncClock::setFreeRate (float rate) noexcept
{
    if (! synced)
        lfoRate = rate;
}

void LfoSyncClock::setTransport (double bpm, int signatureNumerator,
                                 int signatureDenominator) noexcept
{
    constexpr double slowest = 10.0;
    hostTempo = bpm > slowest && std::isfinite (bpm) ? bpm : slowest;
    hostNumerator = std::max (signatureNumerator, 1);
    hostDenominator = std::max (signatureDenominator, 1);

    const auto changed = hostTempo != tempo || hostNumerator != timeSigNumerator
                         || hostDenominator != timeSigDenominator;

    if (! synced || ! changed)
        return;

    adopt();
    update();
}

void LfoSyncClock::adopt() noexcept
{
    tempo = hostTempo.get();
    timeSigNumerator = hostNumerator.get();
    timeSigDenominator = hostDenominator.get();
}

void LfoSyncClock::update() noexcept
{
    const auto beats = static_cast<double> (getBeats (numerator, denominator));
    lfoRate = static_cast<float> (1.0 / (beats * (60.0 / tempo)));
}
