// What no host should do, and some do: the engine carries on.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/RealtimeGuard.h"
#include "tests/support/Signals.h"
#include "tests/support/TestProcessor.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

constexpr auto infinity = std::numeric_limits<float>::infinity();
constexpr auto nan = std::numeric_limits<float>::quiet_NaN();
constexpr auto largest = std::numeric_limits<float>::max();

const char* const depths[] = { "driveModDepth", "crushModDepth", "downsampModDepth",
                               "filterFreqModDepth", "filterResModDepth" };

class EngineRobustnessTest : public testing::Test
{
protected:
    static bool isSound (const juce::AudioBuffer<float>& buffer)
    {
        for (int channel = 0; channel < buffer.getNumChannels(); ++channel)
            for (int i = 0; i < buffer.getNumSamples(); ++i)
            {
                const auto kind = std::fpclassify (buffer.getSample (channel, i));

                if (kind != FP_NORMAL && kind != FP_ZERO)
                    return false;
            }

        return true;
    }

    /** Any value for every parameter. */
    void randomise (TestProcessor& target)
    {
        for (auto* param : target.processor.getParamSet())
        {
            const auto extreme = random.nextInt (3);
            const auto normalised = extreme == 0 ? 0.0 : extreme == 1 ? 1.0 : random.nextDouble();
            param->setValue (param->denormalise (normalised), zembra::sourceHost);
        }
    }

    void prepare (double sampleRate, int blockSize)
    {
        tested.processor.setRateAndBufferSizeDetails (sampleRate, blockSize);
        tested.processor.prepareToPlay (sampleRate, blockSize);
    }

    TestProcessor tested;
    juce::Random random{ 11 };
};

TEST_F (EngineRobustnessTest, FiniteInputGivesFiniteOutputWithoutSubnormals)
{
    for (const auto sampleRate : { 1.0, 8000.0, 48000.0, 384000.0 })
        for (const auto level : { 1e-38f, 1e-30f, 1.0f, 300.0f, 1e6f, 1e20f, largest })
            for (int round = 0; round < 12; ++round)
            {
                prepare (sampleRate, 256);
                randomise (tested);
                tested.set ("lfoFreeRate", 7.0);

                for (const auto numSamples : { 256, 1, 0, 33, 700 })
                {
                    auto buffer = signals::makeBusySignal (2, numSamples, level);
                    tested.process (buffer);
                    ASSERT_TRUE (isSound (buffer))
                        << "level " << level << " at " << sampleRate << " Hz, round " << round;
                }
            }
}

TEST_F (EngineRobustnessTest, ForgetsWhatIsNoNumberWithin100Milliseconds)
{
    for (const auto poison : { nan, infinity, -infinity })
        for (const auto filterType : { 0.0, 1.0 })
            for (const auto depth : { 0.0, 60.0 })
            {
                TestProcessor poisoned, clean;

                for (auto* each : { &poisoned, &clean })
                {
                    each->set ("drive", 50.0);
                    each->set ("crush", 20.0);
                    each->set ("downsamp", 20.0);
                    each->set ("filterType", filterType);
                    each->set ("lowpassRes", 0.9);
                    each->set ("hipassRes", 0.9);
                    each->set ("lfoFreeRate", 3.0);
                    each->processor.prepareToPlay (48000.0, 480);

                    for (const auto* id : depths)
                        each->set (id, depth);
                }

                for (int block = 0; block < 30; ++block)
                {
                    auto ours = signals::makeSine (2, 480, 1000.0, 48000.0, 0.5f);
                    auto theirs = ours;

                    if (block == 5)
                        for (int channel = 0; channel < 2; ++channel)
                            juce::FloatVectorOperations::fill (ours.getWritePointer (channel, 100),
                                                               poison, 3);

                    poisoned.process (ours);
                    clean.process (theirs);

                    // Its own samples aside: what comes after is finite at once.
                    if (block > 5)
                    {
                        ASSERT_TRUE (isSound (ours)) << poison << " in block " << block;
                    }

                    // The limiter's gain stays down for longer, as after any peak.
                    for (int i = 0; block > 20 && std::isnan (poison) && i < 480; ++i)
                        ASSERT_NEAR (ours.getSample (0, i), theirs.getSample (0, i), 1e-3f);
                }
            }
}

TEST_F (EngineRobustnessTest, SilentDryPathKeepsAnInfinityOut)
{
    tested.set ("bypassDrySignal", 1.0);
    prepare (48000.0, 256);

    for (int block = 0; block < 3; ++block)
    {
        auto buffer = signals::makeConstant (2, 256, block == 2 ? infinity : 0.1f);
        tested.process (buffer);
        EXPECT_TRUE (isSound (buffer)) << "block " << block;
    }
}

TEST_F (EngineRobustnessTest, NeverWaitsNorAllocatesWhileItProcesses)
{
    if (! RealtimeGuard::isAvailable())
        GTEST_SKIP() << "nothing can be counted here";

    prepare (48000.0, 512);
    auto buffer = signals::makeBusySignal (2, 512, 0.9f);
    juce::MidiBuffer midi;

    for (int block = 0; block < 500; ++block)
    {
        randomise (tested);
        juce::AudioBuffer<float> part (buffer.getArrayOfWritePointers(), 2, random.nextInt (513));
        const RealtimeGuard guard;
        tested.processor.processBlock (part, midi);
        const auto counts = guard.getCounts();
        ASSERT_EQ (counts.allocations + counts.locks + counts.systemCalls, 0) << "block " << block;
    }
}

TEST_F (EngineRobustnessTest, ProcessesBeforeItIsPrepared)
{
    for (const auto depth : { 0.0, 50.0 })
    {
        TestProcessor unprepared;
        randomise (unprepared);

        for (const auto* id : depths)
            unprepared.set (id, depth);

        for (const auto numChannels : { 1, 2, 4 })
        {
            auto buffer = signals::makeBusySignal (numChannels, 600, 0.9f);
            unprepared.process (buffer);
            EXPECT_TRUE (isSound (buffer)) << numChannels << " channels";
        }
    }
}

TEST_F (EngineRobustnessTest, TakesBlocksAndChannelsThatWereNeverAnnounced)
{
    prepare (48000.0, 64);
    tested.set ("drive", 40.0);
    tested.set ("downsamp", 20.0);

    for (const auto* id : depths)
        tested.set (id, 30.0);

    for (const auto numSamples : { 0, 1, 64, 100000, 3, 5000 })
        for (const auto numChannels : { 2, 1, 5, 2 })
        {
            auto buffer = signals::makeBusySignal (numChannels, numSamples, 0.9f);
            tested.process (buffer);
            EXPECT_TRUE (isSound (buffer)) << numChannels << " channels, " << numSamples;
        }
}

TEST_F (EngineRobustnessTest, FollowsNoWildTransport)
{
    tested.set ("lfoFreeRate", 2.0);
    tested.set ("lfoSyncOrFree", 1.0);
    prepare (48000.0, 128);

    for (const auto* id : depths)
        tested.set (id, 80.0);

    const double wild[] = { 0.0,
                            -1.0,
                            1e-300,
                            1e300,
                            1e18,
                            -1e18,
                            std::numeric_limits<double>::infinity(),
                            std::numeric_limits<double>::quiet_NaN() };

    for (const auto waveform : { 0.0, 1.0, 3.0 })
        for (const auto bpm : wild)
            for (const auto ppq : wild)
                for (const auto& signature : { std::pair (4, 4), std::pair (0, 0),
                                               std::pair (-3, -8), std::pair (1, 2000000000) })
                {
                    juce::AudioPlayHead::PositionInfo info;
                    info.setBpm (bpm);
                    info.setPpqPosition (ppq);
                    info.setTimeSignature (
                        juce::AudioPlayHead::TimeSignature{ signature.first, signature.second });
                    info.setTimeInSamples (random.nextInt64());
                    info.setIsPlaying (true);
                    tested.playHead.position = info;
                    tested.set ("lfoWaveform", waveform);
                    auto buffer = signals::makeBusySignal (2, 128, 0.9f);
                    tested.process (buffer);
                    ASSERT_TRUE (isSound (buffer)) << "bpm " << bpm << ", ppq " << ppq;
                }
}

TEST_F (EngineRobustnessTest, ChangesItsRateAtEveryPrepare)
{
    randomise (tested);

    for (const auto sampleRate :
         { 44100.0, 0.0, -1.0, 1e12, 8000.0, std::numeric_limits<double>::infinity(),
           std::numeric_limits<double>::quiet_NaN(), 192000.0, 48000.0 })
    {
        prepare (sampleRate, 100);

        for (int block = 0; block < 5; ++block)
        {
            auto buffer = signals::makeBusySignal (2, 100, 0.9f);
            tested.process (buffer);
            ASSERT_TRUE (isSound (buffer)) << sampleRate;
        }
    }
}

TEST_F (EngineRobustnessTest, SoundsTheSameInOneBlockOrManyWhenNothingGlides)
{
    TestProcessor whole;

    for (auto* each : { &tested, &whole })
    {
        each->set ("drive", 50.0);
        each->set ("downsamp", 30.0);
        each->set ("lowpassRes", 0.8);
        each->processor.prepareToPlay (48000.0, 8192);

        for (int i = 0; i < 5; ++i)
        {
            auto settling = signals::makeConstant (2, 8192, 0.0f);
            each->process (settling);
        }
    }

    auto expected = signals::makeBusySignal (2, 8192, 0.9f);
    auto source = expected;
    whole.process (expected);

    for (int start = 0; start < 8192;)
    {
        const auto numSamples = std::min (1 + random.nextInt (300), 8192 - start);
        juce::AudioBuffer<float> block (2, numSamples);

        for (int channel = 0; channel < 2; ++channel)
            block.copyFrom (channel, 0, source, channel, start, numSamples);

        tested.process (block);

        for (int channel = 0; channel < 2; ++channel)
            for (int i = 0; i < numSamples; ++i)
                ASSERT_EQ (block.getSample (channel, i), expected.getSample (channel, start + i));

        start += numSamples;
    }
}

} // namespace
