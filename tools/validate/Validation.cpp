// The list of all checks, and the lines that are printed.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/validate/Validation.h"

#include "tools/validate/Watchdog.h"

#include <cstdio>

namespace validate
{

namespace
{

/** Far more than any check takes, even under a sanitizer. */
constexpr int longestSeconds = 300, longestThoroughSeconds = 3600;

void print (const Outcome& outcome)
{
    const auto* text = outcome.text.toRawUTF8();

    if (outcome.kind == Outcome::failed)
        std::printf ("FAIL: %s\n", text);
    else if (outcome.kind == Outcome::skipped)
        std::printf ("skipped: %s\n", text);
    else
        std::printf (outcome.text.isEmpty() ? "pass\n" : "pass (%s)\n", text);

    std::fflush (stdout);
}

} // namespace

std::vector<Check> getAllChecks()
{
    std::vector<Check> all;

    for (const auto list : { getLifeChecks(), getParameterChecks(), getSoundChecks(),
                             getStateChecks(), getEditorChecks() })
        all.insert (all.end(), list.begin(), list.end());

    return all;
}

Outcome runCheck (const Check& check, Bench& bench)
{
    try
    {
        check.run (bench);
        return { Outcome::passed, bench.takeRemarks() };
    }
    catch (const Fault& fault)
    {
        bench.takeRemarks();
        return { Outcome::failed, fault.reason };
    }
    catch (const Skipped& skipped)
    {
        bench.takeRemarks();
        return { Outcome::skipped, skipped.reason };
    }
}

int runAllChecks (Bench& bench, const juce::String& only)
{
    auto numFailed = 0;

    for (const auto& check : getAllChecks())
    {
        if (! juce::String (check.name).contains (only))
            continue;

        std::printf ("  %-50s ", check.name);
        std::fflush (stdout);
        const Watchdog watchdog (bench.choose (longestSeconds, longestThoroughSeconds));
        const auto outcome = runCheck (check, bench);
        print (outcome);
        numFailed += outcome.kind == Outcome::failed ? 1 : 0;
    }

    return numFailed;
}

} // namespace validate
