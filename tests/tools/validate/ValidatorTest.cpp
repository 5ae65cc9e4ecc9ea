// The validator finds what is wrong with a plug-in, and nothing wrong with a good one.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FaultyPlugin.h"
#include "tools/validate/Display.h"
#include "tools/validate/Options.h"
#include "tools/validate/Validation.h"

#include <gtest/gtest.h>

#include <ostream>
#include <set>

namespace
{

using Fault = FaultyPlugin::Fault;
using validate::Outcome;

/** A fault, and the check that has to find it. */
struct Case
{
    Fault fault;
    const char* check;
};

void PrintTo (const Case& value, std::ostream* stream) { *stream << value.check; }

const Case cases[] = {
    { Fault::isNameless, "life: describes itself" },
    { Fault::hasNoTailEnd, "life: describes itself" },
    { Fault::latencyWanders, "life: keeps its latency" },
    { Fault::preparesWrong, "life: prepares again and again" },
    { Fault::isMuteAfterReset, "life: goes on after a reset" },
    { Fault::sharesItsMemory, "life: lives among others" },
    { Fault::hasTwinNames, "parameters: have names of their own" },
    { Fault::hasStuckParameter, "parameters: take every value" },
    { Fault::startsElsewhere, "parameters: start at their defaults and go back" },
    { Fault::misreadsTexts, "parameters: read their own texts" },
    { Fault::trustsTexts, "parameters: stand odd texts" },
    { Fault::keepsNaN, "parameters: stand odd values" },
    { Fault::failsAtTheEnd, "parameters: sound at their ends" },
    { Fault::hatesJumps, "parameters: automation between blocks" },
    { Fault::readsValuesTwice, "parameters: automation inside blocks" },
    { Fault::whispersAtHighRates, "sound: every rate and block size" },
    { Fault::writesBeyondBlocks, "sound: shorter and empty blocks" },
    { Fault::dependsOnBlocks, "sound: shorter and empty blocks" },
    { Fault::keepsBadSamples, "sound: recovers from NaN and infinity" },
    { Fault::hums, "sound: falls silent" },
    { Fault::fearsMono, "sound: mono and stereo" },
    { Fault::ignoresBypass, "sound: bypass" },
    { Fault::losesParameter, "state: keeps every parameter" },
    { Fault::savesDifferently, "state: comes back" },
    { Fault::restoresNumbersOnly, "state: sounds the same in another instance" },
    { Fault::trustsStates, "state: stands bad ones" },
    { Fault::trustsLengths, "state: stands every length" },
    { Fault::isBadWhileLoading, "state: changes while it plays" },
    { Fault::forgetsProgram, "state: programs" },
    { Fault::hasNoEditor, "editor: opens again and again" },
    { Fault::hasNoEditor, "editor: before and after preparing" },
    { Fault::hasNoEditor, "editor: while sound and automation run" },
    { Fault::hasNoEditor, "editor: of several instances" },
    { Fault::hasNoEditor, "editor: takes other sizes" },
};

constexpr auto openingCheck = "life: opens again and again";

validate::Check find (const juce::String& name)
{
    for (const auto& check : validate::getAllChecks())
        if (check.name == name)
            return check;

    ADD_FAILURE() << "there is no check " << name;
    return validate::getAllChecks()[0];
}

validate::Bench makeBench (Fault fault)
{
    return { [fault] (juce::String&) { return std::make_shared<FaultyPlugin> (fault); }, 1, false };
}

class ValidatorTest : public testing::TestWithParam<Case>
{
};

TEST_P (ValidatorTest, FindsTheFault)
{
    const auto check = find (GetParam().check);
    auto bench = makeBench (GetParam().fault);
    const auto outcome = validate::runCheck (check, bench);

    if (outcome.kind == Outcome::skipped && ! validate::hasDisplay())
        GTEST_SKIP() << outcome.text;

    EXPECT_EQ (outcome.kind, Outcome::failed);
    EXPECT_TRUE (outcome.text.isNotEmpty());
}

TEST_P (ValidatorTest, FindsNothingElsewhere)
{
    const auto check = find (GetParam().check);
    auto bench = makeBench (Fault::none);
    const auto outcome = validate::runCheck (check, bench);
    EXPECT_NE (outcome.kind, Outcome::failed) << outcome.text;
    EXPECT_TRUE (outcome.kind == Outcome::passed || ! validate::hasDisplay()) << outcome.text;
}

/** The check's name without its spaces, and a number, since some checks find several faults. */
std::string getTestName (const testing::TestParamInfo<Case>& info)
{
    const auto words = juce::String (info.param.check).removeCharacters (" :");
    return (words + "_" + juce::String (static_cast<int> (info.index))).toStdString();
}

INSTANTIATE_TEST_SUITE_P (Faults, ValidatorTest, testing::ValuesIn (cases), getTestName);

TEST (ValidationTest, EveryCheckHasAFaultThatItFinds)
{
    std::set<juce::String> proven{ openingCheck };

    for (const auto& known : cases)
        proven.insert (known.check);

    for (const auto& check : validate::getAllChecks())
        EXPECT_TRUE (proven.contains (check.name)) << check.name;
}

TEST (ValidationTest, APluginThatStopsOpeningIsNoticed)
{
    auto numOpened = 0;
    const auto openTwice = [&] (juce::String& error) -> validate::Instance
    {
        error = "used up";
        return ++numOpened < 3 ? std::make_shared<FaultyPlugin> (Fault::none) : nullptr;
    };
    validate::Bench bench (openTwice, 1, false);
    const auto outcome = validate::runCheck (find (openingCheck), bench);
    EXPECT_EQ (outcome.kind, Outcome::failed);
    EXPECT_TRUE (outcome.text.contains ("used up")) << outcome.text;

    auto good = makeBench (Fault::none);
    EXPECT_EQ (validate::runCheck (find (openingCheck), good).kind, Outcome::passed);
}

TEST (ValidationTest, ReadsItsCommandLine)
{
    validate::Options options;
    EXPECT_EQ (options.parse ({ "--seed", "7", "a.so", "--thorough", "--repeat", "3", "b.lv2" }),
               "");
    EXPECT_EQ (options.seed, 7);
    EXPECT_EQ (options.numRepeats, 3);
    EXPECT_TRUE (options.isThorough);
    EXPECT_EQ (options.plugins, juce::StringArray ({ "a.so", "b.lv2" }));

    for (const auto* line : { "", "--seed", "--seed x a.so", "--repeat 0 a.so", "--what a.so" })
        EXPECT_NE (validate::Options().parse (juce::StringArray::fromTokens (line, false)), "")
            << line;
}

} // namespace
