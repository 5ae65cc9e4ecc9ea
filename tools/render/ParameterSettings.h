// The parameter values of the command line.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/ParamSet.h"

#include <string>
#include <vector>

namespace render
{

/** A parameter and the plain value it is to take, inside its range. */
struct ParameterSetting
{
    const zembra::Param* param = nullptr;
    double plain = 0.0;
};

/** Reads texts as "drive=40", "lowpassFreq=2500 Hz" or "lfoWaveform=square". What is given last for
    a parameter counts.

    @returns  the settings in the order in which they must be made so that each holds at the end, as
              after the restoring of a preset: the sync switch comes first, since it chooses a period
              itself, and the link last, since it would let one gain move the other
    @throws Failure  with Failure::usage for an unknown id or a value that the parameter can't take
*/
std::vector<ParameterSetting> parseSettings (const zembra::ParamSet& params,
                                             const std::vector<std::string>& assignments);

/** Brings settings into that order. */
void sortSettings (std::vector<ParameterSetting>& settings);

} // namespace render
