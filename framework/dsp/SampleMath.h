// The operations that the stages are written in, for a single sample.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>

namespace zembra
{

/** A stage's formula is a template of its sample's type: a float, or the lanes of ScalarFrames and
    VectorFrames, which overload the functions below and the four basic operations. Each answers
    with the same bits for all types, but for the sign of a NaN.
*/

/** The larger one; the second if they are equal or one is a NaN. */
inline float larger (float a, float b) noexcept { return a > b ? a : b; }

/** The first, which isn't negative, with the sign of the second. */
inline float withSign (float magnitude, float x) noexcept { return std::copysign (magnitude, x); }

inline float magnitude (float x) noexcept { return std::abs (x); }

/** The second if the first isn't above 0, the third otherwise. */
inline float unlessPositive (float test, float then, float otherwise) noexcept
{
    return test <= 0.0f ? then : otherwise;
}

/** What brings the whole part of a double into the low bits of its mantissa: 1.5 * 2^52. */
inline constexpr double wholeInLowBits = 6755399441055744.0;

/** The nearest whole number, ties to even. What doesn't fit into 32 bits wraps; infinities and the
    usual NaN give 0.
*/
inline float roundWrapping (float x) noexcept
{
    const auto bits = std::bit_cast<std::uint64_t> (static_cast<double> (x) + wholeInLowBits);
    return static_cast<float> (static_cast<std::int32_t> (static_cast<std::uint32_t> (bits)));
}

} // namespace zembra
