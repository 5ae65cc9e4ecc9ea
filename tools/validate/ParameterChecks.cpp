// Checks of the parameters: names, values, texts, odd values, automation while sound runs.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/soak/RandomAutomation.h"
#include "tools/validate/BusyThread.h"
#include "tools/validate/Check.h"
#include "tools/validate/Messages.h"
#include "tools/validate/Player.h"
#include "tools/validate/TestSignals.h"
#include "tools/validate/Values.h"

#include <cmath>
#include <iterator>
#include <limits>
#include <set>

namespace validate
{

namespace
{

juce::String getName (const juce::AudioProcessorParameter& parameter)
{
    return parameter.getName (longestText).quoted();
}

/** VST 2 and LV2 hosts make text and value of each other by themselves. */
bool hasTextsOfItsOwn (const juce::AudioPluginInstance& instance)
{
    const auto format = getFormat (instance);
    return format == Format::vst3 || format == Format::other;
}

void hasGoodNames (Bench& bench)
{
    const auto instance = bench.open();
    std::set<juce::String> names;

    for (const auto* parameter : getMovable (*instance))
    {
        const auto name = parameter->getName (longestText);
        expect (name.trim().isNotEmpty(), "a parameter without a name");
        expect (names.insert (name).second, "two parameters are called " + name.quoted());
        expect (parameter->getLabel().length() < 32, name.quoted() + " has an endless unit");
    }
}

/** Sends one value, coming from far away: plug-ins may take a small move for none. */
float send (Player& player, juce::AudioProcessorParameter& parameter, float value)
{
    for (const auto next : { value < 0.5f ? 1.0f : 0.0f, value })
    {
        parameter.setValue (next);
        player.play (makeNoise (2, 4));
    }

    return parameter.getValue();
}

/** Sends values from 0 to 1. They must be taken to the precision that the parameter has: the number of
    different answers tells whether it has steps, and how many.
*/
void checkSweep (Player& player, juce::AudioProcessorParameter& parameter)
{
    constexpr int numValues = 101;
    const auto getSent = [] (size_t i) { return static_cast<float> (i) / (numValues - 1); };
    Values answers;

    for (size_t i = 0; i < numValues; ++i)
        answers.push_back (send (player, parameter, getSent (i)));

    const auto numSteps = static_cast<float> (std::set (answers.begin(), answers.end()).size()) - 1;
    expect (numSteps > 0, getName (parameter) + " can't be moved");

    for (size_t i = 0; i < numValues; ++i)
    {
        expect (std::abs (answers[i] - getSent (i)) <= 0.5f / numSteps + hostTolerance,
                getName (parameter) + " makes " + juce::String (answers[i]) + " of "
                    + juce::String (getSent (i)) + ", with " + juce::String (numSteps) + " steps");
        const auto again = send (player, parameter, answers[i]);
        expect (std::abs (again - answers[i]) <= hostTolerance,
                getName (parameter) + " makes " + juce::String (again) + " of its own value "
                    + juce::String (answers[i]));
    }
}

void takesEveryValue (Bench& bench)
{
    const auto instance = bench.open();
    Player player (*instance, 48000.0, 64);

    for (auto* parameter : getMovable (*instance))
        checkSweep (player, *parameter);
}

void startsAtItsDefaults (Bench& bench)
{
    const auto instance = bench.open();
    auto defaults = readValues (*instance);

    // A VST 2 host isn't told the defaults.
    for (size_t i = 0; getFormat (*instance) != Format::vst2 && i < defaults.size(); ++i)
        defaults[i] = getMovable (*instance)[i]->getDefaultValue();

    expect (findDifference (*instance, defaults).isEmpty(),
            "it doesn't start at the defaults: " + findDifference (*instance, defaults));

    Player player (*instance, 48000.0, 64);
    sendValues (*instance, bench.makeRandomValues());
    player.play (makeNoise (2, 4096));

    // More than once: a parameter that moves others along may come before or after them.
    for (int i = 0; i < 3; ++i)
        sendValues (*instance, defaults);

    player.play (makeNoise (2, 4096));
    expect (findDifference (*instance, defaults).isEmpty(),
            "it doesn't go back to its defaults: " + findDifference (*instance, defaults));
}

void readsItsOwnTexts (Bench& bench)
{
    const auto instance = bench.open();

    for (auto* parameter : getMovable (*instance))
        for (int i = 0; i <= 40; ++i)
        {
            const auto value = static_cast<float> (i) / 40.0f;

            if (! hasTextsOfItsOwn (*instance))
            {
                parameter->setValue (value);
                expect (parameter->getCurrentValueAsText().isNotEmpty(),
                        getName (*parameter) + " has no text at " + juce::String (value));
                continue;
            }

            const auto text = parameter->getText (value, longestText);
            const auto back = parameter->getValueForText (text);
            const auto again = parameter->getText (back, longestText);
            expect (text.isNotEmpty(),
                    getName (*parameter) + " has no text at " + juce::String (value));
            expect (back >= 0.0f && back <= 1.0f && again == text,
                    getName (*parameter) + " reads its own text " + text.quoted() + " as "
                        + again.quoted());
        }
}

void standsOddTexts (Bench& bench)
{
    const auto instance = bench.open();

    if (! hasTextsOfItsOwn (*instance))
        throw Skipped{ "hosts of this format don't ask the plug-in to read a text" };

    const juce::String texts[] = { "",
                                   " ",
                                   "nan",
                                   "-inf",
                                   "1e999",
                                   "-1e999",
                                   "0x7fffffffffff",
                                   "1e-320",
                                   "--5",
                                   "%n%s",
                                   "\xc2\xb5",
                                   "2147483648",
                                   juce::String::repeatedString ("9", 100) };
    constexpr auto infinity = std::numeric_limits<float>::infinity();

    for (auto* parameter : getMovable (*instance))
    {
        for (const auto& text : texts)
        {
            const auto value = parameter->getValueForText (text);
            expect (value >= 0.0f && value <= 1.0f, getName (*parameter) + " reads " + text.quoted()
                                                        + " as " + juce::String (value));
        }

        for (const auto value : { -1.0f, 2.0f, 1e30f, infinity, -infinity, -0.0f })
            expect (parameter->getText (value, longestText).length() <= longestText,
                    "an endless text");
    }
}

/** The values that a plug-in has really taken, which is what its state tells another instance. */
void checkStoredValues (Bench& bench, juce::AudioPluginInstance& instance)
{
    juce::MemoryBlock state;
    instance.getStateInformation (state);
    const auto fresh = bench.open();
    fresh->setStateInformation (state.getData(), static_cast<int> (state.getSize()));

    for (const auto* parameter : getMovable (*fresh))
        expect (parameter->getValue() >= 0.0f && parameter->getValue() <= 1.0f,
                getName (*parameter) + " has stored " + juce::String (parameter->getValue()));
}

void standsOddValues (Bench& bench)
{
    constexpr auto infinity = std::numeric_limits<float>::infinity();
    constexpr float oddValues[] = {
        std::numeric_limits<float>::quiet_NaN(),  infinity, -infinity, -1.0f, 1.0001f, 1e30f,
        std::numeric_limits<float>::denorm_min(), -0.0f
    };
    const auto instance = bench.open();
    const auto movable = getMovable (*instance);
    Player player (*instance, 48000.0, 64);

    for (const auto value : oddValues)
    {
        for (auto* parameter : movable)
        {
            parameter->setValue (0.37f);
            parameter->setValue (value);
            player.play (makeNoise (2, 64));
            parameter->getCurrentValueAsText();
        }

        player.play (makeNoise (2, 4800));
        checkStoredValues (bench, *instance);
    }

    for (auto* parameter : movable)
        checkSweep (player, *parameter);
}

void standsExtremes (Bench& bench)
{
    const auto instance = bench.open();
    Player player (*instance, 44100.0, 512);
    const auto numValues = getMovable (*instance).size();
    const auto noise = makeNoise (2, 1024);

    for (const auto value : { 0.0f, 1.0f })
        for (size_t other = 0; other <= numValues; ++other)
        {
            Values values (numValues, value);

            if (other < numValues)
                values[other] = 1.0f - value;

            sendValues (*instance, values);
            player.play (noise);
        }
}

void standsAutomationBetweenBlocks (Bench& bench)
{
    const auto instance = bench.open();
    Player player (*instance, 44100.0, 256);
    player.beRestless (bench.getRandom().nextInt64());
    soak::RandomAutomation automation (*instance, bench.getRandom().nextInt64(), false);
    const auto noise = makeNoise (2, 700);

    for (int i = 0; i < bench.choose (300, 5000); ++i)
    {
        automation.moveAll();
        player.play (noise);

        if (i % 50 == 0)
            runMessages (1);
    }
}

void standsAutomationInsideBlocks (Bench& bench)
{
    const auto instance = bench.open();
    Player player (*instance, 44100.0, 1024);
    player.beRestless (bench.getRandom().nextInt64());
    const auto noise = makeNoise (2, 4096);
    soak::RandomAutomation automation (*instance, bench.getRandom().nextInt64(), true);
    BusyThread audio ([&] { player.play (noise); });
    BusyThread host (
        [&]
        {
            automation.moveOne();
            juce::Thread::yield();
        });
    runMessages (bench.choose (400, 5000));
    host.stop();
    audio.stop();
}

const Check checks[] = {
    { "parameters: have names of their own", hasGoodNames },
    { "parameters: take every value", takesEveryValue },
    { "parameters: start at their defaults and go back", startsAtItsDefaults },
    { "parameters: read their own texts", readsItsOwnTexts },
    { "parameters: stand odd texts", standsOddTexts },
    { "parameters: stand odd values", standsOddValues },
    { "parameters: sound at their ends", standsExtremes },
    { "parameters: automation between blocks", standsAutomationBetweenBlocks },
    { "parameters: automation inside blocks", standsAutomationInsideBlocks },
};

} // namespace

std::span<const Check> getParameterChecks() { return checks; }

} // namespace validate
