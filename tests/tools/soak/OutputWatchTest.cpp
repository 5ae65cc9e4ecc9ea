// The watch of the soak tool must see each kind of glitch, and nothing else.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/soak/OutputWatch.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

/** The glitches in a constant signal with one sample put into it. */
juce::int64 countGlitches (float constant, float odd, int numSamples = 20000)
{
    juce::AudioBuffer<float> block (2, numSamples);

    for (int channel = 0; channel < 2; ++channel)
        for (int i = 0; i < numSamples; ++i)
            block.setSample (channel, i, constant);

    block.setSample (1, numSamples / 2, odd);
    soak::OutputWatch watch;
    watch.look (block);
    return watch.getNumGlitches();
}

TEST (OutputWatchTest, SeesSamplesThatNoSettingExplains)
{
    constexpr auto inf = std::numeric_limits<float>::infinity();

    for (const auto odd :
         { std::numeric_limits<float>::quiet_NaN(), inf, -inf, 1e-40f, -1e-40f, 260.0f, -1e30f })
        EXPECT_EQ (countGlitches (0.5f, odd), 1) << odd;

    for (const auto usual : { 0.0f, -0.0f, 1.2e-38f, 1.0f, -100.0f })
        EXPECT_EQ (countGlitches (0.5f, usual), 0) << usual;
}

TEST (OutputWatchTest, SeesALoudStretchThatTheLimiterShouldHaveEnded)
{
    EXPECT_EQ (countGlitches (-3.9f, 0.0f), 0);
    EXPECT_EQ (countGlitches (4.0f, 0.0f, 1000), 0) << "that long it may take";
    EXPECT_EQ (countGlitches (-4.0f, 0.0f, 3 * 4096), 6) << "three windows in each channel";
}

TEST (OutputWatchTest, TellsTwoSoundsApart)
{
    juce::AudioBuffer<float> block (2, 100);
    block.clear();
    soak::OutputWatch first, second, third;
    first.look (block);
    second.look (block);
    block.setSample (1, 99, 1e-7f);
    third.look (block);
    EXPECT_EQ (first.getFingerprint(), second.getFingerprint());
    EXPECT_NE (first.getFingerprint(), third.getFingerprint());
}

} // namespace
