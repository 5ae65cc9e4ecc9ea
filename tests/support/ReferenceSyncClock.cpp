// The tempo clock of the reference engine: decides the LFO rate, freely or by note length.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReferenceSyncClock.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace reference
{

static constexpr std::array<Division, 33> divisions{ {
    { 24, 1 }, { 16, 1 }, { 32, 3 },  { 12, 1 }, { 8, 1 },  { 16, 3 }, { 6, 1 },
    { 4, 1 },  { 8, 3 },  { 3, 1 },   { 2, 1 },  { 4, 3 },  { 3, 2 },  { 1, 1 },
    { 2, 3 },  { 3, 4 },  { 1, 2 },   { 1, 3 },  { 3, 8 },  { 1, 4 },  { 2, 12 },
    { 3, 16 }, { 1, 8 },  { 2, 24 },  { 3, 32 }, { 1, 16 }, { 2, 48 }, { 3, 64 },
    { 1, 32 }, { 1, 48 }, { 3, 128 }, { 1, 64 }, { 1, 96 },
} };

static constexpr int quarterIndex = 19;

Division divisionAt (int index)
{
    if (index < 0 || index >= static_cast<int> (divisions.size()))
        return { 1, 4 };

    return divisions[static_cast<size_t> (index)];
}

int indexOfDivision (const Division& division)
{
    const auto found = std::find (divisions.begin(), divisions.end(), division);
    return found == divisions.end() ? quarterIndex : static_cast<int> (found - divisions.begin());
}

float LfoSyncClock::beatsPerPeriod (const Division& d) const
{
    return static_cast<float> (timeSigDenominator) * static_cast<float> (d.numerator)
           / static_cast<float> (d.denominator);
}

void LfoSyncClock::computeRate()
{
    lfoRate = static_cast<float> (1.0 / (static_cast<double> (beatsPerPeriod()) * (60.0 / tempo)));
}

Division LfoSyncClock::nearestDivision (float period) const
{
    Division best;
    float smallest = 1.0e6f;

    for (auto d = divisions.rbegin(); d != divisions.rend(); ++d)
    {
        const auto length = beatsPerPeriod (*d) * static_cast<float> (60.0 / tempo);
        const auto difference = std::abs (length - period);

        if (difference < smallest)
        {
            smallest = difference;
            best = *d;
        }
    }

    return best;
}

void LfoSyncClock::setSynced (bool shouldBeSynced)
{
    if (synced == shouldBeSynced)
        return;

    synced = shouldBeSynced;

    if (! synced)
        return computeRate();

    division = nearestDivision (1.0f / std::max (lfoRate, 1.0e-5f));
    update (true);
}

void LfoSyncClock::setDivision (const Division& newDivision)
{
    if (! synced || newDivision == division)
        return;

    division = newDivision;
    update (true);
}

void LfoSyncClock::takeTempo()
{
    timeSigNumerator = std::max (1, info.timeSigNumerator);
    timeSigDenominator = std::max (1, info.timeSigDenominator);
    tempo = info.bpm > 10.0 ? info.bpm : 10.0;
}

void LfoSyncClock::update (bool force)
{
    if (! synced)
        return;

    const auto oldNumerator = timeSigNumerator, oldDenominator = timeSigDenominator;
    const auto oldTempo = tempo;
    takeTempo();

    if (force || timeSigNumerator != oldNumerator || timeSigDenominator != oldDenominator
        || tempo != oldTempo)
        computeRate();
}

} // namespace reference
