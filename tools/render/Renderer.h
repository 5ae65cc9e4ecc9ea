// From file to file through an engine.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/ParamSet.h"
#include "tools/render/RenderOptions.h"

namespace render
{

/** Renders one file as the options say, in constant memory.
    @param params  a set of the product's parameters, for their ids and ranges
    @throws Failure  for whatever goes wrong; nothing is left behind then
*/
void renderFile (const RenderOptions& options, const zembra::ParamSet& params);

} // namespace render
