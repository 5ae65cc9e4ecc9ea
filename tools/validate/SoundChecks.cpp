// Checks of the sound: rates, blocks, layouts, bad input, silence, bypass.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/validate/Check.h"
#include "tools/validate/Player.h"
#include "tools/validate/TestSignals.h"
#include "tools/validate/Values.h"

#include <cmath>
#include <iterator>
#include <limits>

namespace validate
{

namespace
{

constexpr double sampleRates[] = { 44100.0, 48000.0, 88200.0, 96000.0, 176400.0, 192000.0 };
constexpr int blockSizes[] = { 1, 13, 64, 128, 500, 512, 1024, 4096, 8192 };

void sendRandomValues (Bench& bench, const juce::AudioPluginInstance& instance)
{
    sendValues (instance, bench.makeRandomValues());
}

juce::String describe (double sampleRate, int blockSize)
{
    return " at " + juce::String (sampleRate) + " Hz in blocks of " + juce::String (blockSize);
}

/** Plays all test signals, at first with the settings as they are, then with random ones. */
void playEverything (Bench& bench, juce::AudioPluginInstance& instance, double sampleRate,
                     int blockSize)
{
    Player player (instance, sampleRate, blockSize);

    for (int i = 0; i < bench.choose (2, 6); ++i)
    {
        for (const auto& signal : getTestSignals())
            try
            {
                player.play (makeSignal (signal, 2, juce::jmax (1500, blockSize + 7)));
            }
            catch (const Fault& fault)
            {
                throw Fault{ fault.reason + " after " + signal.name
                             + describe (sampleRate, blockSize) };
            }

        sendRandomValues (bench, instance);
    }
}

/** In a hurry each rate is met with one block size, and each block size with one rate. */
void playsAtEveryRate (Bench& bench)
{
    const auto instance = bench.open();

    for (size_t rate = 0; rate < std::size (sampleRates); ++rate)
        for (size_t block = 0; block < std::size (blockSizes); ++block)
            if (block % std::size (sampleRates) == rate || bench.choose (0, 1) == 1)
                playEverything (bench, *instance, sampleRates[rate], blockSizes[block]);
}

int makeOddSize (juce::Random& random)
{
    constexpr int sizes[] = { 0, 0, 1, 2, 3, 17, 1023, 1024 };
    return random.nextBool() ? random.nextInt (1025) : sizes[random.nextInt (std::size (sizes))];
}

/** Two instances with the settings they start with, one in odd blocks, when the glides after the start
    are over.
*/
void playsShorterBlocks (Bench& bench)
{
    const auto one = bench.open(), other = bench.open();
    const auto noise = makeNoise (2, 40000);
    Player whole (*one, 44100.0, 1024), inPieces (*other, 44100.0, 1024);
    whole.playSilence (0.2);
    inPieces.playSilence (0.2);
    const auto wanted = whole.play (noise);
    const auto heard =
        inPieces.playInBlocks (noise, [&] { return makeOddSize (bench.getRandom()); });
    const auto difference = getLargestDifference (wanted, heard);
    expect (difference < 1e-4f,
            "in odd blocks it sounds different, by " + juce::String (difference));
}

juce::AudioBuffer<float> makePoison (float value)
{
    auto poison = makeNoise (2, 512);

    for (int channel = 0; channel < 2; ++channel)
        for (int i = 0; i < 512; i += 3)
            poison.setSample (channel, i, value);

    return poison;
}

void recoversFromBadInput (Bench& bench)
{
    constexpr auto infinity = std::numeric_limits<float>::infinity();
    constexpr auto notANumber = std::numeric_limits<float>::quiet_NaN();
    const auto instance = bench.open();
    Player player (*instance, 48000.0, 256);
    const auto recovery = makeNoise (2, player.getLength (0.1)), noise = makeNoise (2, 12000);

    for (int i = 0; i < bench.choose (8, 100); ++i)
    {
        for (const auto value :
             { notANumber, infinity, -infinity, std::numeric_limits<float>::max() })
        {
            player.play (makePoison (value), Player::Trust::mayBeAnything);
            player.play (recovery, Player::Trust::mayBeAnything);

            try
            {
                player.play (noise);
            }
            catch (const Fault& fault)
            {
                throw Fault{ "100 ms after an input of " + juce::String (value) + " "
                             + fault.reason };
            }
        }

        sendRandomValues (bench, *instance);
    }
}

/** With the settings that it starts with. */
void fallsSilent (Bench& bench)
{
    const auto instance = bench.open();
    Player player (*instance, 48000.0, 512);
    player.play (makeNoise (2, 48000));
    player.playSilence (instance->getTailLengthSeconds() + 1.0);
    const auto rest = player.playSilence (0.5);
    const auto level = rest.getMagnitude (0, rest.getNumSamples());
    expect (level < 1e-5f, "a second after its tail there is still " + juce::String (level));
}

void playsInItsLayouts (Bench& bench)
{
    using Set = juce::AudioChannelSet;
    auto numLayouts = 0;

    for (const auto& [in, out] :
         { std::pair{ Set::stereo(), Set::stereo() }, std::pair{ Set::mono(), Set::mono() },
           std::pair{ Set::mono(), Set::stereo() }, std::pair{ Set::stereo(), Set::mono() } })
    {
        const auto instance = bench.open();
        juce::AudioProcessor::BusesLayout layout;
        layout.inputBuses.add (in);
        layout.outputBuses.add (out);

        if (! instance->checkBusesLayoutSupported (layout) || ! instance->setBusesLayout (layout))
            continue;

        ++numLayouts;
        expect (instance->getTotalNumInputChannels() == in.size()
                    && instance->getTotalNumOutputChannels() == out.size(),
                "it takes a layout and uses another");
        playEverything (bench, *instance, 48000.0, 256);
        Player player (*instance, 48000.0, 256);
        player.play (makeNoise (in.size(), 4096));
    }

    expect (numLayouts > 0, "it takes neither mono nor stereo");
    bench.remark (juce::String (numLayouts) + " layouts");
}

/** JUCE's host for LV2 leaves the switch to its caller. */
void setBypassed (Player& player, const juce::AudioPluginInstance& instance, bool isBypassed)
{
    if (getFormat (instance) == Format::lv2 && instance.getBypassParameter() != nullptr)
        instance.getBypassParameter()->setValue (isBypassed ? 1.0f : 0.0f);
    else
        player.setBypassed (isBypassed);
}

void leavesTheSoundAloneInBypass (Bench& bench)
{
    const auto instance = bench.open();
    sendRandomValues (bench, *instance);
    Player player (*instance, 48000.0, 512);
    const auto latency = instance->getLatencySamples();
    const auto noise = makeNoise (2, 9600);
    const auto numChannels =
        juce::jmin (instance->getTotalNumInputChannels(), instance->getTotalNumOutputChannels(), 2);

    for (int turn = 0; turn < 3; ++turn)
    {
        player.play (noise);
        setBypassed (player, *instance, true);
        player.play (noise);
        const auto heard = player.play (noise);
        setBypassed (player, *instance, false);

        for (int channel = 0; channel < numChannels; ++channel)
            for (int i = latency; i < heard.getNumSamples(); ++i)
                if (std::abs (heard.getSample (channel, i) - noise.getSample (channel, i - latency))
                    > 1e-6f)
                    throw Fault{ "bypassed it changes the sound: in turn " + juce::String (turn)
                                 + " sample " + juce::String (i) + " is "
                                 + juce::String (heard.getSample (channel, i)) + " instead of "
                                 + juce::String (noise.getSample (channel, i - latency)) };
    }

    player.play (noise);
}

const Check checks[] = {
    { "sound: every rate and block size", playsAtEveryRate },
    { "sound: shorter and empty blocks", playsShorterBlocks },
    { "sound: recovers from NaN and infinity", recoversFromBadInput },
    { "sound: falls silent", fallsSilent },
    { "sound: mono and stereo", playsInItsLayouts },
    { "sound: bypass", leavesTheSoundAloneInBypass },
};

} // namespace

std::span<const Check> getSoundChecks() { return checks; }

} // namespace validate
