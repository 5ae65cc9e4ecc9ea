// Checks of instances as a whole: opening, what they say of themselves, preparing, many at once.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/validate/Check.h"
#include "tools/validate/Messages.h"
#include "tools/validate/Player.h"
#include "tools/validate/TestSignals.h"
#include "tools/validate/Values.h"

#include <cmath>
#include <vector>

namespace validate
{

namespace
{

void opensAgainAndAgain (Bench& bench)
{
    for (int i = 0; i < bench.choose (6, 40); ++i)
    {
        const auto instance = bench.open();

        if (i % 3 == 1)
            runMessages (5);

        if (i % 3 == 2)
            Player (*instance, 48000.0, 512).play (makeNoise (2, 2048));
    }
}

void describesItself (Bench& bench)
{
    const auto first = bench.open(), second = bench.open();
    const auto description = first->getPluginDescription();
    expect (first->getName().trim().isNotEmpty(), "it has no name");
    expect (first->getName() == second->getName(), "two instances have different names");
    expect (description.uniqueId != 0 || description.deprecatedUid != 0
                || getFormat (*first) == Format::other,
            "it has no identifier");
    expect (! description.isInstrument, "an effect calls itself an instrument");
    expect (! getMovable (*first).empty(), "it has no parameters");
    expect (first->getParameters().size() == second->getParameters().size(),
            "two instances have different numbers of parameters");

    for (const auto isInput : { true, false })
    {
        const auto channels =
            isInput ? first->getTotalNumInputChannels() : first->getTotalNumOutputChannels();
        expect (channels >= 1 && channels <= 64,
                juce::String (channels) + (isInput ? " inputs" : " outputs"));
    }

    const auto tail = first->getTailLengthSeconds();
    expect (std::isfinite (tail) && tail >= 0.0 && tail < 3600.0,
            "its tail has " + juce::String (tail) + " s");
}

void keepsItsLatency (Bench& bench)
{
    const auto instance = bench.open();
    const auto getLatency = [&] { return instance->getLatencySamples(); };

    for (const auto sampleRate : { 44100.0, 96000.0, 44100.0 })
    {
        Player player (*instance, sampleRate, 256);
        const auto latency = getLatency();
        expect (latency >= 0 && latency < sampleRate,
                "its latency is " + juce::String (latency) + " samples");

        for (int i = 0; i < 4; ++i)
        {
            sendValues (*instance, bench.makeRandomValues());
            player.play (makeNoise (2, 4096));
            runMessages (5);
            expect (getLatency() == latency, "its latency changes while it plays, from "
                                                 + juce::String (latency) + " to "
                                                 + juce::String (getLatency()) + " samples");
        }
    }

    const auto latency = getLatency();
    const Player again (*instance, 44100.0, 256);
    expect (getLatency() == latency, "its latency is another one at the next start");
}

/** What is heard when the glides after the start are over. */
juce::AudioBuffer<float> playAfterRest (juce::AudioPluginInstance& instance)
{
    Player player (instance, 48000.0, 512);
    player.playSilence (0.2);
    return player.play (makeNoise (2, 8192));
}

void preparesAgainAndAgain (Bench& bench)
{
    const auto instance = bench.open();
    const auto first = playAfterRest (*instance);

    for (int i = 0; i < bench.choose (12, 100); ++i)
    {
        const auto sampleRate = 8000.0 * (1 + bench.getRandom().nextInt (24));
        Player player (*instance, sampleRate, 1 + bench.getRandom().nextInt (4096));

        if (i % 3 > 0)
            player.play (makeNoise (2, 5000));

        if (i % 3 > 1)
            instance->releaseResources(); // and once more by the player
    }

    const auto difference = getRelativeDifference (first, playAfterRest (*instance));
    expect (difference < 1e-3, "prepared again with the first settings it sounds different, by "
                                   + juce::String (difference));
}

void goesOnAfterReset (Bench& bench)
{
    const auto instance = bench.open();
    Player player (*instance, 48000.0, 512);

    for (int i = 0; i < bench.choose (4, 20); ++i)
    {
        const auto played = player.play (makeNoise (2, 9000));
        expect (played.getMagnitude (0, 9000) > 0.0f, "it is mute after a reset");
        instance->reset();
        instance->suspendProcessing (true);
        instance->suspendProcessing (false);
        instance->setNonRealtime (i % 2 == 0);
    }
}

/** An instance that plays among others sounds like one that is alone. */
void livesAmongOthers (Bench& bench)
{
    constexpr int blockSize = 300, numBlocks = 40;
    const auto noise = makeNoise (2, blockSize);
    std::vector<float> alone;

    for (const auto numOthers : { 0, bench.choose (6, 30) })
    {
        const auto instance = bench.open();
        Player player (*instance, 48000.0, blockSize);
        std::vector<Instance> others;
        std::vector<std::unique_ptr<Player>> players;

        for (int i = 0; i < numOthers; ++i)
        {
            others.push_back (bench.open());
            sendValues (*others.back(), bench.makeRandomValues());
            players.push_back (
                std::make_unique<Player> (*others.back(), 44100.0 + 7000.0 * i, 512));
        }

        for (size_t i = 0; i < numBlocks; ++i)
        {
            for (auto& other : players)
                other->play (noise);

            const auto peak = player.play (noise).getRMSLevel (0, 0, blockSize);

            if (numOthers == 0)
                alone.push_back (peak);

            expect (std::abs (peak - alone[i]) < 1e-4f, "others change how it sounds");
        }

        // The first go first, so that nothing may depend on them.
        players.clear();

        while (! others.empty())
            others.erase (others.begin());
    }
}

const Check checks[] = {
    { "life: opens again and again", opensAgainAndAgain },
    { "life: describes itself", describesItself },
    { "life: keeps its latency", keepsItsLatency },
    { "life: prepares again and again", preparesAgainAndAgain },
    { "life: goes on after a reset", goesOnAfterReset },
    { "life: lives among others", livesAmongOthers },
};

} // namespace

std::span<const Check> getLifeChecks() { return checks; }

} // namespace validate
