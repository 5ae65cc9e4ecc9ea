// The bit crush: rounding to a number of bits that need not be whole.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/Chunk.h"
#include "framework/dsp/Control.h"
#include "framework/dsp/SampleMath.h"

/** Rounds each sample to a grid of 2^bits steps over -1 to 1, from 24 bits down to about one.
    It always runs: at amount 0 the signal is still rounded to 24 bits. A product with the scale that
    doesn't fit into 32 bits wraps, which is heard on very loud input; so whatever comes in, what
    goes out is finite. [audio thread]
*/
class CrushStage final
{
public:
    /** The stage's formula; the scale is half the number of steps. */
    template <typename Sample>
    static Sample process (Sample x, Sample scale) noexcept
    {
        using zembra::roundWrapping;
        return roundWrapping (scale * x) / scale;
    }

    /** Steers a chunk by one amount, 0 to 1. */
    void steer (float amount) noexcept;

    /** Steers a chunk by an amount that the LFO lowers, sample by sample. A modulated amount ends
        just above one bit.
    */
    void steer (const zembra::Chunk& chunk, float amount, float depth, const float* lfo) noexcept;

    zembra::Control& getScale() noexcept { return control; }

private:
    zembra::Control control;
    float steadyAmount = 0.0f;
    float scale = 8388608.0f;
};
