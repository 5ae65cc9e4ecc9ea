// A number that steers a stage, steady or moving.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>

namespace zembra
{

/** Holds one value for all frames of a chunk, or a curve with one value per frame. [audio thread] */
class Control final
{
public:
    /** The longest chunk that may move. */
    static constexpr int maxFrames = 256;

    void set (float newValue) noexcept
    {
        value = newValue;
        moving = false;
    }

    /** Makes the control a moving one, and returns where its curve is to be written. */
    float* move() noexcept
    {
        moving = true;
        return curve.data();
    }

    /** Writes a steady value out as a curve, for a loop that reads curves alone. */
    void spread (int numFrames) noexcept
    {
        if (! moving)
            std::fill_n (curve.begin(), numFrames, value);
    }

    bool isSteadyAt (float v) const noexcept { return ! moving && value == v; }
    bool isMoving() const noexcept { return moving; }
    float getValue() const noexcept { return value; }
    const float* getCurve() const noexcept { return curve.data(); }

private:
    // Frames are read two at a time, so that a chunk of an odd length reads one more.
    alignas (16) std::array<float, maxFrames + 4> curve{};
    float value = 0.0f;
    bool moving = false;
};

} // namespace zembra
