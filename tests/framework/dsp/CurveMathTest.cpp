// The fast functions of control curves against the library's in double precision.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/dsp/CurveMath.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

double getRelativeError (double value, double expected)
{
    return std::abs (value / expected - 1.0);
}

TEST (CurveMathTest, RaisesTwoToAnyPower)
{
    for (double x = -126.0; x <= 127.0; x += 1.7e-4)
        ASSERT_LT (
            getRelativeError (static_cast<double> (zembra::fastExp2 (static_cast<float> (x))),
                              std::exp2 (static_cast<double> (static_cast<float> (x)))),
            2e-7)
            << x;

    for (const auto whole : { 0.0f, 1.0f, 4.0f, 23.0f, 24.0f })
        EXPECT_EQ (zembra::fastExp2 (whole), std::exp2 (whole));
}

TEST (CurveMathTest, FindsTheTangentUpToARightAngle)
{
    const auto getValue = [] (float x)
    {
        const auto [numerator, denominator] = zembra::fastTangent (x);
        return static_cast<double> (numerator) / static_cast<double> (denominator);
    };

    for (float x = 1e-6f; x < 1.5707f; x += 1e-6f)
        ASSERT_LT (getRelativeError (getValue (x), std::tan (static_cast<double> (x))), 3e-7) << x;

    EXPECT_EQ (getValue (0.0f), 0.0);
    EXPECT_GT (std::abs (getValue (1.5707964f)), 1e7);
}

TEST (CurveMathTest, TakesTheFourthRoot)
{
    for (float x = 1e-6f; x <= 1.0f; x *= 1.01f)
        ASSERT_LT (getRelativeError (static_cast<double> (zembra::fastFourthRoot (x)),
                                     std::pow (static_cast<double> (x), 0.25)),
                   2e-7)
            << x;

    EXPECT_EQ (zembra::fastFourthRoot (0.0f), 0.0f);
}

} // namespace
