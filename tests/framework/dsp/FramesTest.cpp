// The lanes of a register against single samples: every operation, at the odd numbers too.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/dsp/SoftClipper.h"
#include "framework/dsp/VectorFrames.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

using zembra::ScalarFrames;
using zembra::VectorFrames;

constexpr auto infinity = std::numeric_limits<float>::infinity();
constexpr auto nan = std::numeric_limits<float>::quiet_NaN();

const float oddNumbers[] = { 0.0f,  -0.0f,  1.0f,     -1.0f,    0.5f,   -2.5f,
                             3.5f,  1e-30f, -1e20f,   8.3e6f,   2.2e9f, -2147483648.0f,
                             3e38f, nan,    infinity, -infinity };

std::uint32_t getBits (float x)
{
    return std::isnan (x) ? 0x7fc00000u : std::bit_cast<std::uint32_t> (x);
}

/** Holds an operation on frames of both kinds against the same on floats. */
template <typename Operation>
void compare (Operation operation)
{
    for (const auto x : oddNumbers)
        for (const auto y : oddNumbers)
        {
            const auto expected = getBits (operation (x, y));
            const auto vector = operation (VectorFrames::frame (x, y), VectorFrames::frame (y, x));
            const auto scalar = operation (ScalarFrames::frame (x, y), ScalarFrames::frame (y, x));
            EXPECT_EQ (getBits (VectorFrames::getLeft (vector)), expected) << x << ", " << y;
            EXPECT_EQ (getBits (VectorFrames::getRight (vector)), getBits (operation (y, x)));
            EXPECT_EQ (getBits (ScalarFrames::getLeft (scalar)), expected) << x << ", " << y;
        }
}

TEST (FramesTest, CalculateLikeSingleSamples)
{
    using zembra::larger;
    using zembra::magnitude;
    using zembra::roundWrapping;
    using zembra::unlessPositive;

    compare ([] (auto a, auto b) { return a + b; });
    compare ([] (auto a, auto b) { return a - b; });
    compare ([] (auto a, auto b) { return a * b; });
    compare ([] (auto a, auto b) { return a / b; });
    compare ([] (auto a, auto b) { return larger (a, b); });
    compare ([] (auto a, auto) { return magnitude (a); });
    compare ([] (auto a, auto) { return roundWrapping (a); });
    compare ([] (auto a, auto b) { return unlessPositive (a, b, a); });
    compare ([clipper = zembra::SoftClipper (1e-5f)] (auto a, auto) { return clipper.clip (a); });
}

TEST (FramesTest, RoundToEvenAndWrapWhatIsTooLarge)
{
    const std::pair<float, float> cases[] = {
        { 0.5f, 0.0f },          { 1.5f, 2.0f },     { -2.5f, -2.0f },
        { -3.5f, -4.0f },        { 1e9f, 1e9f },     { 2147483648.0f, -2147483648.0f },
        { 4294967296.0f, 0.0f }, { infinity, 0.0f }, { nan, 0.0f },
    };

    for (const auto& [x, expected] : cases)
        EXPECT_EQ (zembra::roundWrapping (x), expected) << x;
}

template <typename Frames>
void checkMoves()
{
    const float left[] = { 1.0f, 2.0f }, right[] = { 3.0f, 4.0f };
    const auto pair = Frames::load (left, right);
    EXPECT_EQ (Frames::getLeft (Frames::first (pair)), 1.0f);
    EXPECT_EQ (Frames::getRight (Frames::first (pair)), 3.0f);
    EXPECT_EQ (Frames::getLeft (Frames::second (pair)), 2.0f);
    EXPECT_EQ (Frames::getRight (Frames::second (pair)), 4.0f);
    EXPECT_EQ (Frames::getLargest (pair), 4.0f);

    float newLeft[3] = {}, newRight[3] = {};
    Frames::store (Frames::join (Frames::second (pair), Frames::first (pair)), newLeft, newRight);
    Frames::storeOne (Frames::loadOne (left, right), newLeft + 2, newRight + 2);

    for (int i = 0; i < 3; ++i)
    {
        EXPECT_EQ (newLeft[i], i == 0 ? 2.0f : 1.0f);
        EXPECT_EQ (newRight[i], i == 0 ? 4.0f : 3.0f);
    }

    const auto curve = Frames::pair (right);
    EXPECT_EQ (Frames::getRight (Frames::first (curve)), 3.0f);
    EXPECT_EQ (Frames::getLeft (Frames::second (curve)), 4.0f);

    alignas (16) const float one[] = { 1.0f, 2.0f, 3.0f, 4.0f };
    alignas (16) const float two[] = { 5.0f, 6.0f, 7.0f, 8.0f };
    const auto picked = Frames::template pickPair<2> (Frames::four (one), Frames::four (two));
    EXPECT_EQ (Frames::getRight (Frames::first (picked)), 3.0f);
    EXPECT_EQ (Frames::getLeft (Frames::second (picked)), 7.0f);
}

TEST (FramesTest, MoveSamplesInAndOut)
{
    checkMoves<VectorFrames>();
    checkMoves<ScalarFrames>();
}

} // namespace
