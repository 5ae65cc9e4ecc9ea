// The LFO's waves, measured: period, duty, range, the glide to rest.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/ZembraLfo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace
{

constexpr int sampleRate = 48000;

class ZembraLfoTest : public testing::Test
{
protected:
    ZembraLfoTest() { lfo.prepare (static_cast<float> (sampleRate)); }

    std::vector<float> run (int wave, float rate, int numSamples, int blockSize = 480)
    {
        std::vector<float> out (static_cast<size_t> (numSamples));
        lfo.setWaveform (wave);
        lfo.setRate (rate);

        for (int i = 0; i < numSamples; i += blockSize)
            lfo.fill (out.data() + i, std::min (blockSize, numSamples - i));

        return out;
    }

    ZembraLfo lfo;
};

TEST_F (ZembraLfoTest, DrawsItsWaves)
{
    // At 2 Hz a period is 24000 samples.
    const auto at = [] (const std::vector<float>& wave, double period)
    { return wave[static_cast<size_t> (period * 24000.0)]; };

    const auto sine = run (ZembraLfo::sine, 2.0f, 48000);
    const auto triangle = run (ZembraLfo::triangle, 2.0f, 48000);
    const auto square = run (ZembraLfo::square, 2.0f, 48000);

    for (double x = 0.0; x < 2.0; x += 0.013)
    {
        const auto phase = x - std::floor (x);
        EXPECT_NEAR (at (sine, x), 0.5 + 0.5 * std::sin (6.283185307 * phase), 2e-4) << x;
        const auto expected = phase < 0.25   ? 0.5 + 2.0 * phase
                              : phase < 0.75 ? 1.5 - 2.0 * phase
                                             : 2.0 * phase - 1.5;
        EXPECT_NEAR (at (triangle, x), expected, 2e-4) << x;
    }

    // Half of each period at 1 and half at 0, but for the slopes of one table step.
    for (const auto level : { 0.0f, 1.0f })
        EXPECT_NEAR (static_cast<double> (std::count (square.begin(), square.end(), level)),
                     24000.0 - 2.0 * 24000.0 / 1024.0, 3.0);
}

TEST_F (ZembraLfoTest, IsTheSameInAnyBlocks)
{
    const auto whole = run (ZembraLfo::sine, 7.3f, 20000, 20000);
    lfo.setPosition (0.0f);
    const auto parts = run (ZembraLfo::sine, 7.3f, 20000, 37);
    EXPECT_EQ (whole, parts);
}

TEST_F (ZembraLfoTest, CountsAPlaceBeforeTheStartFromTheEnd)
{
    lfo.setPosition (0.75f);
    const auto expected = run (ZembraLfo::triangle, 1.0f, 1000);
    lfo.setPosition (-0.25f);
    EXPECT_EQ (run (ZembraLfo::triangle, 1.0f, 1000), expected);
}

TEST_F (ZembraLfoTest, GlidesToRestAndBack)
{
    run (ZembraLfo::square, 1.0f, 100);
    run (ZembraLfo::square, 0.0f, 100);
    const auto resting = run (ZembraLfo::square, 0.0f, 600);
    EXPECT_EQ (resting.back(), 0.0f);

    // Back to where it stopped, 1, in 512 equal steps; it arrives within 0.01.
    const auto waking = run (ZembraLfo::square, 1.0f, 600);
    EXPECT_NEAR (waking[255], 0.5f, 1e-3f);
    EXPECT_LT (waking[500], 1.0f);
    EXPECT_EQ (waking[512], 1.0f);
}

TEST_F (ZembraLfoTest, HoldsARandomValueForAPeriodAndOneAtRest)
{
    lfo.getRandom().setSeed (3);
    const auto steps = run (ZembraLfo::random, 10.0f, sampleRate);
    int numChanges = 0;

    for (size_t i = 1; i < steps.size(); ++i)
    {
        numChanges += steps[i] != steps[i - 1] ? 1 : 0;
        ASSERT_TRUE (steps[i] >= 0.0f && steps[i] < 1.0f);
    }

    EXPECT_NEAR (numChanges, 10, 1);
    EXPECT_EQ (run (ZembraLfo::random, 0.0f, 100).back(), 1.0f);
}

TEST_F (ZembraLfoTest, StaysInItsTableAtAnyRate)
{
    for (const auto rate : { 1e5f, 1e30f, std::numeric_limits<float>::infinity(), 47999.0f })
        for (const auto x : run (ZembraLfo::triangle, rate, 2000))
            ASSERT_TRUE (x >= 0.0f && x <= 1.0f) << rate;
}

} // namespace
