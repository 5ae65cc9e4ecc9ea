// Runs all checks on one plug-in and prints what they find.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/validate/Check.h"

#include <vector>

namespace validate
{

struct Outcome
{
    enum Kind
    {
        passed,
        failed,
        skipped
    };

    Kind kind = passed;
    juce::String text; ///< the reason, or a remark on a check that passed
};

/** Every check there is, in the order in which they run. */
std::vector<Check> getAllChecks();

/** Runs one check. */
Outcome runCheck (const Check& check, Bench& bench);

/** Runs all checks whose name has `only` in it and prints a line for each: the name before it starts, so that a crash has a name,
    and then how it went. [message thread]
    @returns  the number of checks that failed
*/
int runAllChecks (Bench& bench, const juce::String& only);

} // namespace validate
