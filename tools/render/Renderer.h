// From file to file through an engine.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/PluginProcessor.h"
#include "tools/render/RenderOptions.h"

namespace render
{

/** Renders one file and saves a preset, either or both as the options say, in constant memory.
    @param reference  a processor of the product, which takes the state that the options ask for
    @throws Failure  for whatever goes wrong; nothing is left behind then
*/
void renderFile (const RenderOptions& options, zembra::PluginProcessor& reference);

} // namespace render
