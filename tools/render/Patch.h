// The sound that the command line asks for.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/PluginProcessor.h"
#include "tools/render/ParameterSettings.h"
#include "tools/render/RenderOptions.h"

namespace render
{

/** Puts a processor into the state of `--state`, then of `--preset`, then of `--set`.

    All engines take their values from there, through their parameters, so that a chunk or a preset
    sounds the same in each of them.

    @returns  the values to set, in the order in which they must be set: those of `--set` alone if
              nothing else is given, else all; what `--set` says holds whatever the rest says
    @throws Failure  for a chunk that the processor refuses and for a preset that can't be found or
                     isn't valid
*/
std::vector<ParameterSetting> applyPatch (zembra::PluginProcessor& reference,
                                          const RenderOptions& options);

/** Writes a processor's present state as a preset, in one step.
    @throws Failure  if the file can't be written; it is as it was then
*/
void savePreset (zembra::PluginProcessor& reference, const std::string& path);

} // namespace render
