// Elementary functions for control curves, in forms that compilers turn into vector code.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>

namespace zembra
{

/** 2^x for -126 <= x <= 127, to within 2e-7 of the value: the whole part goes into the exponent, the
    rest through a polynomial over -0.5 to 0.5.
*/
inline float fastExp2 (float x) noexcept
{
    constexpr float roundingOffset = 12582912.0f; // 1.5 * 2^23
    const auto shifted = x + roundingOffset;
    const auto rest = x - (shifted - roundingOffset);
    const auto series =
        (((((1.5352779e-4f * rest + 1.3398874e-3f) * rest + 9.6180187e-3f) * rest + 5.5503272e-2f)
              * rest
          + 2.4022648e-1f)
             * rest
         + 6.9314718e-1f)
            * rest
        + 1.0f;
    const auto exponent = std::bit_cast<std::uint32_t> (shifted) << 23;
    return std::bit_cast<float> (std::bit_cast<std::uint32_t> (series) + exponent);
}

/** The tangent as a quotient, so that it can be carried on without dividing by nothing. */
struct Tangent
{
    float numerator, denominator;
};

/** tan (x) for 0 <= x <= pi/2, to within 3e-7 of the value: a polynomial up to pi/4, from there on
    the reciprocal of that of pi/2 - x. Coefficients as in S. Moshier's Cephes library (tanf).
*/
inline Tangent fastTangent (float x) noexcept
{
    constexpr float quarterPi = 0.78539816f;
    constexpr float halfPi = 1.5707964f;
    constexpr float halfPiRest = -4.3711388e-8f; // what halfPi lacks to the true value
    const auto isLow = x <= quarterPi;
    const auto a = isLow ? x : (halfPi - x) + halfPiRest;
    const auto z = a * a;
    const auto series = (((((9.38540185543e-3f * z + 3.11992232697e-3f) * z + 2.44301354525e-2f) * z
                           + 5.34112807005e-2f)
                              * z
                          + 1.33387994085e-1f)
                             * z
                         + 3.33331568548e-1f)
                            * z * a
                        + a;
    return { isLow ? series : 1.0f, isLow ? 1.0f : series };
}

/** x^0.25, as two square roots. */
inline float fastFourthRoot (float x) noexcept { return std::sqrt (std::sqrt (x)); }

} // namespace zembra
