// A named check, and the lists of all of them.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/validate/Bench.h"

#include <span>

namespace validate
{

/** Looks at one side of a plug-in. Throws a Fault or Skipped. [message thread] */
struct Check
{
    const char* name;
    void (*run) (Bench&);
};

std::span<const Check> getLifeChecks();
std::span<const Check> getParameterChecks();
std::span<const Check> getSoundChecks();
std::span<const Check> getStateChecks();
std::span<const Check> getEditorChecks();

} // namespace validate
