// The note lengths that the synced LFO can have.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>

/** One note length as a fraction of a whole note; "d" marks a dotted one, "T" a triplet. */
struct LfoDivision
{
    const char* text;
    int numerator, denominator;

    bool operator== (const LfoDivision& other) const noexcept
    {
        return numerator == other.numerator && denominator == other.denominator;
    }
};

/** All choices of `lfoSyncedPeriod`, by its value, from the longest to the shortest. The fractions
    stay uncancelled: they are compared as pairs.
*/
inline constexpr std::array<LfoDivision, 33> lfoDivisions{ {
    { "16/1d", 24, 1 }, { "16/1", 16, 1 },  { "16/1T", 32, 3 },  { "8/1d", 12, 1 },
    { "8/1", 8, 1 },    { "8/1T", 16, 3 },  { "4/1d", 6, 1 },    { "4/1", 4, 1 },
    { "4/1T", 8, 3 },   { "2/1d", 3, 1 },   { "2/1", 2, 1 },     { "2/1T", 4, 3 },
    { "1/1d", 3, 2 },   { "1/1", 1, 1 },    { "1/1T", 2, 3 },    { "1/2d", 3, 4 },
    { "1/2", 1, 2 },    { "1/2T", 1, 3 },   { "1/4d", 3, 8 },    { "1/4", 1, 4 },
    { "1/4T", 2, 12 },  { "1/8d", 3, 16 },  { "1/8", 1, 8 },     { "1/8T", 2, 24 },
    { "1/16d", 3, 32 }, { "1/16", 1, 16 },  { "1/16T", 2, 48 },  { "1/32d", 3, 64 },
    { "1/32", 1, 32 },  { "1/32T", 1, 48 }, { "1/64d", 3, 128 }, { "1/64", 1, 64 },
    { "1/64T", 1, 96 },
} };

/** The choice for a quarter note, which stands in for whatever isn't in the table. */
inline constexpr int quarterNoteIndex = 19;

/** The division of a value of `lfoSyncedPeriod`. */
constexpr LfoDivision getLfoDivision (int index) noexcept
{
    const auto isInTable = index >= 0 && index < static_cast<int> (lfoDivisions.size());
    return lfoDivisions[static_cast<size_t> (isInTable ? index : quarterNoteIndex)];
}

/** The value of `lfoSyncedPeriod` for a pair. */
constexpr int getLfoDivisionIndex (int numerator, int denominator) noexcept
{
    for (size_t i = 0; i < lfoDivisions.size(); ++i)
        if (lfoDivisions[i].numerator == numerator && lfoDivisions[i].denominator == denominator)
            return static_cast<int> (i);

    return quarterNoteIndex;
}
