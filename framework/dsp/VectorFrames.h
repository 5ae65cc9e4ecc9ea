// Stereo frames in the lanes of a vector register, by the compilers' own vector types.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/ScalarFrames.h"

#include <cstring>
#include <memory>

#if ! defined(ZEMBRA_HAS_VECTOR_FRAMES)
#if defined(__GNUC__) // Clang too
#define ZEMBRA_HAS_VECTOR_FRAMES 1
#else
#define ZEMBRA_HAS_VECTOR_FRAMES 0
#endif
#endif

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace zembra
{

#if ZEMBRA_HAS_VECTOR_FRAMES

/** Four samples in one register. */
class VectorLanes final
{
public:
    using Floats [[gnu::vector_size (16)]] = float;
    using Ints [[gnu::vector_size (16)]] = std::int32_t;

    VectorLanes() = default;
    explicit VectorLanes (float all) noexcept : values (Floats{ all, all, all, all }) {}
    explicit VectorLanes (Floats v) noexcept : values (v) {}

    Floats get() const noexcept { return values; }

    VectorLanes operator+ (VectorLanes b) const noexcept { return VectorLanes (values + b.values); }
    VectorLanes operator- (VectorLanes b) const noexcept { return VectorLanes (values - b.values); }
    VectorLanes operator* (VectorLanes b) const noexcept { return VectorLanes (values * b.values); }
    VectorLanes operator/ (VectorLanes b) const noexcept { return VectorLanes (values / b.values); }

    friend VectorLanes larger (VectorLanes a, VectorLanes b) noexcept
    {
        return VectorLanes (a.values > b.values ? a.values : b.values);
    }

    friend VectorLanes withSign (VectorLanes magnitude, VectorLanes x) noexcept
    {
        return fromBits (magnitude.bits() | (x.bits() & signBits()));
    }

    friend VectorLanes magnitude (VectorLanes x) noexcept
    {
        return fromBits (x.bits() & ~signBits());
    }

    friend VectorLanes unlessPositive (VectorLanes test, VectorLanes then,
                                       VectorLanes otherwise) noexcept
    {
        return VectorLanes (test.values <= Floats{} ? then.values : otherwise.values);
    }

    friend VectorLanes roundWrapping (VectorLanes x) noexcept
    {
#if defined(__SSE2__)
        const auto offset = _mm_set1_pd (wholeInLowBits);
        const auto low = _mm_add_pd (_mm_cvtps_pd (x.values), offset);
        const auto high = _mm_add_pd (_mm_cvtps_pd (_mm_movehl_ps (x.values, x.values)), offset);
        const auto whole =
            _mm_shuffle_ps (_mm_castpd_ps (low), _mm_castpd_ps (high), _MM_SHUFFLE (2, 0, 2, 0));
        return VectorLanes (_mm_cvtepi32_ps (_mm_castps_si128 (whole)));
#else
        return VectorLanes (
            Floats{ zembra::roundWrapping (x.values[0]), zembra::roundWrapping (x.values[1]),
                    zembra::roundWrapping (x.values[2]), zembra::roundWrapping (x.values[3]) });
#endif
    }

private:
    static Ints signBits() noexcept
    {
        constexpr auto sign = std::int32_t{ -0x7fffffff - 1 };
        return Ints{ sign, sign, sign, sign };
    }

    static VectorLanes fromBits (Ints b) noexcept
    {
        return VectorLanes (std::bit_cast<Floats> (b));
    }
    Ints bits() const noexcept { return std::bit_cast<Ints> (values); }

    Floats values{};
};

/** The frames of a loop: a frame is a sample of the left and one of the right channel, a pair is two
    frames that follow each other, left and right in turn.

    A frame lies in the low half of its register. What its high half holds means nothing, but is
    computed along, from numbers no wilder than those of the low half.
*/
struct VectorFrames final
{
    using Frame = VectorLanes;
    using Pair = VectorLanes;
    using Floats = VectorLanes::Floats;

    static Frame frame (float left, float right)
    {
        return Frame (Floats{ left, right, left, right });
    }

    /** The value of a curve at a frame, for both channels. */
    static Frame frame (const float* curve) { return Frame (*curve); }

    /** The values of a curve at two frames, for both channels. */
    static Pair pair (const float* curve)
    {
        const auto v = loadTwo (curve);
        return Pair (__builtin_shufflevector (v, v, 0, 0, 1, 1));
    }

    /** Four numbers of any meaning, at an address that is a multiple of 16. */
    static Pair four (const float* v)
    {
        Floats result;
        std::memcpy (&result, std::assume_aligned<16> (v), sizeof (result));
        return Pair (result);
    }

    /** One of the four numbers of two frames, for both channels. */
    template <int index>
    static Pair pickPair (Pair a, Pair b)
    {
        return Pair (
            __builtin_shufflevector (a.get(), b.get(), index, index, 4 + index, 4 + index));
    }

    static Pair load (const float* left, const float* right)
    {
        return Pair (__builtin_shufflevector (loadTwo (left), loadTwo (right), 0, 4, 1, 5));
    }

    /** The last frame of an odd number, twice. */
    static Pair loadOne (const float* left, const float* right) { return frame (*left, *right); }

    static void store (Pair x, float* left, float* right)
    {
        const auto v = x.get();
        const auto halves = std::bit_cast<Halves> (__builtin_shufflevector (v, v, 0, 2, 1, 3));
        const double lower = halves[0];
        const double upper = halves[1];
        std::memcpy (left, &lower, sizeof (lower));
        std::memcpy (right, &upper, sizeof (upper));
    }

    static void storeOne (Pair x, float* left, float* right)
    {
        *left = getLeft (x);
        *right = getRight (x);
    }

    static Frame first (Pair x) { return x; }

    static Frame second (Pair x)
    {
        const auto v = x.get();
        return Frame (__builtin_shufflevector (v, v, 2, 3, 2, 3));
    }

    static Pair join (Frame a, Frame b)
    {
        return Pair (__builtin_shufflevector (a.get(), b.get(), 0, 1, 4, 5));
    }

    static float get (Pair x, int i) { return x.get()[i]; }
    static float getLeft (Frame x) { return x.get()[0]; }
    static float getRight (Frame x) { return x.get()[1]; }

    static float getLargest (Pair x)
    {
        const auto v = x.get();
        return std::max ({ v[0], v[1], v[2], v[3] });
    }

private:
    using Halves [[gnu::vector_size (16)]] = double;

    /** Two floats in the low half of a register, moved as the eight bytes that they are. */
    static Floats loadTwo (const float* source)
    {
        double both;
        std::memcpy (&both, source, sizeof (both));
        return std::bit_cast<Floats> (Halves{ both, 0.0 });
    }
};

#else

using VectorFrames = ScalarFrames;

#endif

} // namespace zembra
