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

    template <typename Function>
    void forEach (Function&& function)
    {
        function (dry);
        function (wet);
    }

    template <typename Sample>
    static Sample process (Sample processed, Sample input, Sample wetGain, Sample dryGain) noexcept
    {
        return processed * wetGain + input * dryGain;
    }
};

} // namespace zembra
