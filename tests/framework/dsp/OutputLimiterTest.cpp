// The safety limiter by its numbers.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/dsp/OutputLimiter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace
{

std::vector<float> limit (zembra::OutputLimiter& limiter, std::vector<float> samples)
{
    limiter.process (samples.data(), static_cast<int> (samples.size()));
    return samples;
}

TEST (OutputLimiterTest, PassesWhatIsBelowFour)
{
    zembra::OutputLimiter limiter;
    const std::vector<float> loud (1000, -3.9999998f);
    EXPECT_EQ (limit (limiter, loud), loud);
    EXPECT_TRUE (limiter.passes (3.9999998f));
    EXPECT_FALSE (limiter.passes (4.0f));
    EXPECT_LT (limit (limiter, { 4.0f })[0], 4.0f);
}

TEST (OutputLimiterTest, PullsTheGainBySixtyFourthsWhileOver)
{
    // Of 0.99 of full scale for a peak of 8: 0.12375. Each sample over the threshold closes 1/64.
    zembra::OutputLimiter limiter;
    const auto out = limit (limiter, std::vector<float> (600, 8.0f));

    for (size_t i = 0; i < 300; ++i)
        EXPECT_NEAR (
            out[i] / 8.0f,
            0.12375 + (1.0 - 0.12375) * std::pow (63.0 / 64.0, static_cast<double> (i + 1)), 2e-6);

    EXPECT_NEAR (out.back() / 8.0f, 0.12375, 2e-4);
}

TEST (OutputLimiterTest, HoldsAndRecoversInAStaircase)
{
    for (const size_t blockSize : { size_t (1), size_t (100), size_t (4096), size_t (9000) })
    {
        zembra::OutputLimiter limiter;
        auto gain = limit (limiter, { 8.0f })[0] / 8.0f;
        EXPECT_FLOAT_EQ (gain, 1.0f - (1.0f - 0.12375f) / 64.0f);
        std::vector<float> out;

        while (out.size() < 9000)
            for (const auto x : limit (limiter, std::vector<float> (blockSize, 1.0f)))
                out.push_back (x);

        for (size_t i = 0; i < 9000; ++i)
        {
            if (i % 4096 == 4095)
                gain += (1.0f - gain) / 256.0f;

            ASSERT_NEAR (out[i], gain, 1e-6f) << "sample " << i << " in blocks of " << blockSize;
        }
    }
}

TEST (OutputLimiterTest, MakesAnInfinityFiniteAndLetsANaNPass)
{
    constexpr auto infinity = std::numeric_limits<float>::infinity();
    zembra::OutputLimiter limiter;
    const auto out = limit (limiter, { 1.0f, infinity, -infinity, 1.0f,
                                       std::numeric_limits<float>::quiet_NaN(), 1.0f });
    EXPECT_EQ (out[0], 1.0f);
    EXPECT_TRUE (std::isfinite (out[1]) && out[1] > 1e38f);
    EXPECT_TRUE (std::isfinite (out[2]) && out[2] < -1e38f);
    EXPECT_TRUE (std::isfinite (out[3]));
    EXPECT_TRUE (std::isnan (out[4]));
    EXPECT_TRUE (std::isfinite (out[5]));
}

} // namespace
