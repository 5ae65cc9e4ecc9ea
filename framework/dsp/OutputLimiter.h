// The safety limiter of one output channel.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zembra
{

/** Passes everything below 4.0 (+12 dB) bit for bit, and pulls the gain down when a sample reaches
    it: 1/64 of the way to 0.99 of full scale for each new peak.

    Each gain step acts on one sample only. After 4096 samples below the threshold the gain recovers
    by one step of 1/256 of the way, and the count begins again: the recovery is a staircase, which
    is part of the effect's sound. A NaN passes; an infinity is taken for the largest number.
    [audio thread]
*/
class OutputLimiter final
{
public:
    void process (float* samples, int numSamples) noexcept;

    /** True if samples up to this magnitude would pass untouched. */
    bool passes (float largest) const noexcept { return gain == 1.0f && ! (largest >= threshold); }

private:
    void processQuiet (float* samples, int numSamples) noexcept;
    float processSample (float x) noexcept;
    float nextGainStep (float magnitude) noexcept;

    static constexpr float threshold = 4.0f;
    static constexpr int holdSamples = 4096;
    static constexpr float releaseRate = 1.0f / 256.0f;
    static constexpr float attackRate = 1.0f / 64.0f;

    int holdCounter = 0;
    float targetGain = 1.0f;
    float gain = 1.0f;
    float peak = 0.0f;
};

} // namespace zembra
