// The factors of the dry/wet mix and its formula.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/Control.h"

namespace zembra
{

/** The gains of the mix, which DryWetProcessor steers. */
struct MixControls
{
    Control dry, wet;

    bool isMoving() const noexcept { return dry.isMoving() || wet.isMoving(); }

    /** Gives both a curve if only one has one. */
    void spread (int numFrames) noexcept
    {
        dry.spread (numFrames);
        wet.spread (numFrames);
    }

    template <typename Sample>
    static Sample process (Sample processed, Sample input, Sample wetGain, Sample dryGain) noexcept
    {
        return processed * wetGain + input * dryGain;
    }
};

} // namespace zembra
