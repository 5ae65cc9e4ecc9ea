// The tempo clock of the reference engine: decides the LFO rate, freely or by note length.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace reference
{

/** What a host's play head answers. */
struct Transport
{
    double bpm = 120.0;
    int timeSigNumerator = 4, timeSigDenominator = 4;
    double ppqPosition = 0.0;
    std::int64_t timeInSamples = 0;
    bool isPlaying = false, isLooping = false;
};

/** A note length in whole notes, kept uncancelled. */
struct Division
{
    int numerator = 1, denominator = 1;
    bool operator== (const Division&) const = default;
};

/** The division of a period index 0 to 32, a quarter for any other. */
Division divisionAt (int index);

/** The index of a division, 19 for one that is not in the table. */
int indexOfDivision (const Division&);

/** Decides the LFO rate in Hz, either freely or from tempo and note length. */
struct LfoSyncClock
{
    void setSynced (bool shouldBeSynced);
    void setDivision (const Division&);
    void read (const Transport& transport) { info = transport; }
    void takeTempo();
    void update (bool force);

    /** Lower number of the time signature times the note length: beats per period. */
    float beatsPerPeriod() const { return beatsPerPeriod (division); }
    float beatsPerPeriod (const Division&) const;

    Transport info;
    bool synced = false;
    Division division;
    double tempo = 120.0;
    int timeSigNumerator = 4, timeSigDenominator = 4;
    float lfoRate = 0.0f;

private:
    Division nearestDivision (float period) const;
    void computeRate();
};

} // namespace reference
