// Stereo frames as plain arrays of floats: what any compiler can do.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/SampleMath.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace zembra
{

/** A few samples that take the same operation at the same time, one after the other. */
template <size_t size>
class ScalarLanes final
{
public:
    ScalarLanes() = default;
    explicit ScalarLanes (float all) noexcept { values.fill (all); }
    explicit ScalarLanes (const std::array<float, size>& v) noexcept : values (v) {}

    float operator[] (size_t i) const noexcept { return values[i]; }

    ScalarLanes operator+ (ScalarLanes b) const { return with (b, std::plus<>()); }
    ScalarLanes operator- (ScalarLanes b) const { return with (b, std::minus<>()); }
    ScalarLanes operator* (ScalarLanes b) const { return with (b, std::multiplies<>()); }
    ScalarLanes operator/ (ScalarLanes b) const { return with (b, std::divides<>()); }

    friend ScalarLanes larger (ScalarLanes a, ScalarLanes b)
    {
        return a.with (b, [] (float x, float y) { return zembra::larger (x, y); });
    }

    friend ScalarLanes withSign (ScalarLanes magnitude, ScalarLanes x)
    {
        return magnitude.with (x, [] (float m, float y) { return zembra::withSign (m, y); });
    }

    friend ScalarLanes magnitude (ScalarLanes x)
    {
        return x.with (x, [] (float y, float) { return zembra::magnitude (y); });
    }

    friend ScalarLanes roundWrapping (ScalarLanes x)
    {
        return x.with (x, [] (float y, float) { return zembra::roundWrapping (y); });
    }

    friend ScalarLanes unlessPositive (ScalarLanes test, ScalarLanes then, ScalarLanes otherwise)
    {
        for (size_t i = 0; i < size; ++i)
            then.values[i] = zembra::unlessPositive (test[i], then[i], otherwise[i]);

        return then;
    }

private:
    template <typename Operation>
    ScalarLanes with (ScalarLanes other, Operation operation) const
    {
        for (size_t i = 0; i < size; ++i)
            other.values[i] = operation (values[i], other.values[i]);

        return other;
    }

    std::array<float, size> values{};
};

/** The frames of a loop without vector registers. Has the interface of VectorFrames. */
struct ScalarFrames final
{
    using Frame = ScalarLanes<2>;
    using Pair = ScalarLanes<4>;

    static Frame frame (float left, float right) { return Frame ({ left, right }); }
    static Frame frame (const float* curve) { return Frame (curve[0]); }
    static Pair pair (const float* curve)
    {
        return Pair ({ curve[0], curve[0], curve[1], curve[1] });
    }

    /** Four numbers of any meaning, and two lots of them spread over the frames of a pair. */
    static Pair four (const float* v) { return Pair ({ v[0], v[1], v[2], v[3] }); }

    template <size_t index>
    static Pair pickPair (Pair a, Pair b)
    {
        return Pair ({ a[index], a[index], b[index], b[index] });
    }

    static Pair load (const float* left, const float* right)
    {
        return Pair ({ left[0], right[0], left[1], right[1] });
    }

    static Pair loadOne (const float* left, const float* right)
    {
        return Pair ({ *left, *right, *left, *right });
    }

    static void store (Pair x, float* left, float* right)
    {
        left[0] = x[0];
        right[0] = x[1];
        left[1] = x[2];
        right[1] = x[3];
    }

    static void storeOne (Pair x, float* left, float* right)
    {
        *left = x[0];
        *right = x[1];
    }

    static Frame first (Pair x) { return Frame ({ x[0], x[1] }); }
    static Frame second (Pair x) { return Frame ({ x[2], x[3] }); }
    static Pair join (Frame a, Frame b) { return Pair ({ a[0], a[1], b[0], b[1] }); }
    static float get (Pair x, size_t i) { return x[i]; }
    static float getLeft (Frame x) { return x[0]; }
    static float getRight (Frame x) { return x[1]; }
    static float getLargest (Pair x) { return std::max ({ x[0], x[1], x[2], x[3] }); }
};

} // namespace zembra
