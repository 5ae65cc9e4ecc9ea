// Checks of the state: it comes back, bad ones do no harm, programs.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/soak/RandomAutomation.h"
#include "tools/validate/BusyThread.h"
#include "tools/validate/Check.h"
#include "tools/validate/Corruption.h"
#include "tools/validate/Messages.h"
#include "tools/validate/Player.h"
#include "tools/validate/PluginState.h"
#include "tools/validate/TestSignals.h"
#include "tools/validate/Values.h"

namespace validate
{

namespace
{

/** An instance that plays, since some formats hand values over with the next block only. */
struct Subject
{
    explicit Subject (const Bench& bench)
        : instance (bench.open()),
          player (*instance, 48000.0, 256)
    {
    }

    /** Sends one value, coming from far away: a plug-in may take a small move for none. */
    void send (juce::AudioProcessorParameter& parameter, float value)
    {
        for (const auto next : { value < 0.5f ? 1.0f : 0.0f, value })
        {
            parameter.setValue (next);
            settle();
        }
    }

    void settle() { player.play (makeNoise (2, 512)); }

    /** Sends random values. */
    void scramble (Bench& bench)
    {
        sendValues (*instance, bench.makeRandomValues());
        settle();
    }

    void set (const juce::MemoryBlock& state)
    {
        setState (*instance, state);
        settle();
    }

    const Instance instance;
    Player player;
};

void expectValues (const juce::AudioPluginInstance& instance, const Values& wanted,
                   const juce::String& where)
{
    const auto difference = findDifference (instance, wanted);
    expect (difference.isEmpty(), where + " " + difference);
}

/** The values that a state holds, read from an instance that has known nothing else: what a host has
    sent to a parameter needn't be what the plug-in made of it.
*/
Values readStored (const Bench& bench, const juce::MemoryBlock& state)
{
    Subject fresh (bench);
    fresh.set (state);
    return readValues (*fresh.instance);
}

/** Moves each parameter by itself. */
void keepsEveryParameter (Bench& bench)
{
    constexpr int numValues = 33;
    Subject original (bench), recalled (bench);
    const auto movable = getMovable (*original.instance);

    for (size_t i = 0; i < movable.size(); ++i)
    {
        const auto initial = movable[i]->getValue();

        for (int k = 0; k < numValues; ++k)
        {
            original.send (*movable[i],
                           snap (static_cast<float> (k) / (numValues - 1), bench.getSteps()[i]));
            recalled.set (getState (*original.instance));
            const auto sent = movable[i]->getValue(), answer = readValues (*recalled.instance)[i];
            expect (isNear (answer, sent), movable[i]->getName (longestText).quoted()
                                               + " comes back as " + juce::String (answer)
                                               + " instead of " + juce::String (sent));
        }

        original.send (*movable[i], initial);
    }
}

void comesBack (Bench& bench)
{
    Subject original (bench);

    for (int i = 0; i < bench.choose (10, 100); ++i)
    {
        original.scramble (bench);
        const auto state = getState (*original.instance);
        expect (! state.isEmpty(), "its state is empty");
        expect (getState (*original.instance) == state, "asked twice it gives two states");
        const auto values = readStored (bench, state);

        original.scramble (bench);
        original.set (state);
        Subject fresh (bench);
        fresh.set (getState (*original.instance));
        expectValues (*fresh.instance, values, "set again,");

        // The first state has the values as the host sent them, the second as they are stored; from
        // then on nothing changes any more.
        const auto second = getState (*fresh.instance);
        Subject third (bench);
        third.set (second);
        expect (unwrapState (*third.instance, getState (*third.instance))
                    == unwrapState (*fresh.instance, second),
                "a state that was set is saved differently");
    }
}

juce::AudioBuffer<float> playAfterRest (juce::AudioPluginInstance& instance)
{
    Player player (instance, 48000.0, 256);
    player.playSilence (0.5);
    return player.play (makeNoise (2, 24000));
}

/** Settings under which two equal instances sound different (a random LFO) can't be compared. */
void soundsTheSame (Bench& bench)
{
    auto numCompared = 0;
    const auto numSettings = bench.choose (8, 60);

    for (int i = 0; i < numSettings; ++i)
    {
        const auto original = bench.open(), first = bench.open(), second = bench.open();

        if (i > 0)
            sendValues (*original, bench.makeRandomValues());

        const auto wanted = playAfterRest (*original);
        const auto state = getState (*original);
        setState (*first, state);
        setState (*second, state);
        const auto heard = playAfterRest (*first);

        if (getRelativeDifference (heard, playAfterRest (*second)) > 1e-4)
            continue;

        ++numCompared;
        const auto difference = getRelativeDifference (wanted, heard);
        expect (difference < 0.02, "another instance sounds different, by "
                                       + juce::String (100.0 * difference, 1) + " %");
    }

    expect (numCompared > 0, "equal instances never sound the same");
    bench.remark (juce::String (numCompared) + " of " + juce::String (numSettings)
                  + " settings can be compared");
}

void expectSane (const juce::AudioPluginInstance& instance)
{
    for (const auto* parameter : getMovable (instance))
        expect (parameter->getValue() >= 0.0f && parameter->getValue() <= 1.0f,
                "a bad state sets " + parameter->getName (longestText).quoted() + " to "
                    + juce::String (parameter->getValue()));
}

void standsBadStates (Bench& bench)
{
    Subject subject (bench);
    auto& instance = *subject.instance;
    subject.scramble (bench);
    const auto state = getState (instance);
    const auto values = readStored (bench, state);
    const auto bytes = unwrapState (instance, state);
    expect (! bytes.isEmpty(), "its state can't be found in what the host got");

    for (const auto& nothing : { juce::MemoryBlock(), juce::MemoryBlock ("no state at all", 15) })
        setState (instance, wrapState (instance, state, nothing));

    subject.settle();
    const auto present = readStored (bench, getState (instance));
    expect (present == values, "a state of nothing changes something");

    for (int i = 0; i < bench.choose (400, 10000); ++i)
    {
        setState (instance, wrapState (instance, state, corrupt (bytes, bench.getRandom())));

        if (i % 4 == 0)
            subject.settle();

        if (i % 50 == 0)
            runMessages (1);

        expectSane (instance);
    }

    subject.set (state);
    Subject fresh (bench);
    fresh.set (getState (instance));
    expectValues (*fresh.instance, values, "after bad states a good one sets");
}

void standsEveryLength (Bench& bench)
{
    Subject subject (bench);
    auto& instance = *subject.instance;
    const auto state = getState (instance);
    const auto bytes = unwrapState (instance, state);
    const auto numLengths = static_cast<size_t> (bench.choose (150, 10000));

    for (size_t length = 0; length < bytes.getSize();
         length += juce::jmax (size_t{ 1 }, bytes.getSize() / numLengths))
    {
        setState (instance, wrapState (instance, state, { bytes.getData(), length }));
        expectSane (instance);
    }

    subject.settle();
}

void changesWhileItPlays (Bench& bench)
{
    Subject subject (bench);
    auto& instance = *subject.instance;
    std::vector<juce::MemoryBlock> states;

    for (int i = 0; i < 4; ++i)
    {
        subject.scramble (bench);
        states.push_back (getState (instance));
    }

    subject.player.beRestless (bench.getRandom().nextInt64());
    soak::RandomAutomation automation (instance, bench.getRandom().nextInt64(), true);
    const auto noise = makeNoise (2, 4096);
    size_t turn = 0;
    BusyThread audio ([&] { subject.player.play (noise); });
    BusyThread host (
        [&]
        {
            setState (instance, states[++turn % states.size()]);
            automation.moveAll();
            getState (instance);
        });
    runMessages (bench.choose (500, 5000));
    host.stop();
    audio.stop();
    subject.set (states[0]);
    Subject fresh (bench);
    fresh.set (getState (instance));
    expectSane (*fresh.instance);
}

void hasPrograms (Bench& bench)
{
    const auto instance = bench.open();
    const auto numPrograms = instance->getNumPrograms();
    expect (numPrograms >= 0 && numPrograms < 10000, juce::String (numPrograms) + " programs");
    Player player (*instance, 48000.0, 256);

    for (int i = 0; i < juce::jmin (numPrograms, bench.choose (32, 10000)); ++i)
    {
        expect (instance->getProgramName (i).length() < longestText, "an endless program name");
        instance->setCurrentProgram (i);
        player.play (makeNoise (2, 2000));
        expect (instance->getCurrentProgram() == i,
                "program " + juce::String (i) + " isn't the one that was chosen");
        expectSane (*instance);
    }
}

const Check checks[] = {
    { "state: keeps every parameter", keepsEveryParameter },
    { "state: comes back", comesBack },
    { "state: sounds the same in another instance", soundsTheSame },
    { "state: stands bad ones", standsBadStates },
    { "state: stands every length", standsEveryLength },
    { "state: changes while it plays", changesWhileItPlays },
    { "state: programs", hasPrograms },
};

} // namespace

std::span<const Check> getStateChecks() { return checks; }

} // namespace validate
