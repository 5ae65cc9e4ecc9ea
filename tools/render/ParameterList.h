// The parameters in words.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/ParamSet.h"

#include <string>

namespace render
{

/** The values a parameter takes, as "-48 to 18 dB". */
std::string describeRange (const zembra::Param& param);

/** One line for each parameter: id, name, range with unit, default, named values. */
std::string listParameters (const zembra::ParamSet& params);

} // namespace render
