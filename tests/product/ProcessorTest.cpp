// Preparation, transport and physics of the whole chain.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/RealtimeGuard.h"
#include "tests/support/Signals.h"
#include "tests/support/TestProcessor.h"
#include "tools/soak/RandomAutomation.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

class ProcessorTest : public testing::Test
{
protected:
    /** Lets ramps and smoothers settle. */
    void settle (double sampleRate = 48000.0)
    {
        tested.processor.prepareToPlay (sampleRate, 512);

        for (int i = 0; i < 100; ++i)
        {
            juce::AudioBuffer<float> silence (2, 512);
            silence.clear();
            tested.process (silence);
        }
    }

    TestProcessor tested;
};

TEST_F (ProcessorTest, GrowsItsBuffersAsBlocksAreAnnouncedOrCome)
{
    tested.processor.prepareToPlay (48000.0, 256);
    EXPECT_EQ (tested.processor.getBlockCapacity(), 512);
    tested.processor.prepareToPlay (48000.0, 500);
    EXPECT_EQ (tested.processor.getBlockCapacity(), 512) << "it fits";
    tested.processor.prepareToPlay (48000.0, 600);
    EXPECT_EQ (tested.processor.getBlockCapacity(), 2048);

    auto big = signals::makeConstant (2, 5000, 0.1f);
    tested.process (big);
    EXPECT_EQ (tested.processor.getBlockCapacity(), 10000);
}

TEST_F (ProcessorTest, NeverWaitsNorAllocatesWhileItProcesses)
{
    if (! RealtimeGuard::isAvailable())
        GTEST_SKIP() << "nothing can be counted here";

    tested.processor.prepareToPlay (48000.0, 512);
    soak::RandomAutomation automation (tested.processor, 11, false);
    auto buffer = signals::makeBusySignal (2, 512, 0.9f);
    juce::Random random (12);
    juce::MidiBuffer midi;

    for (int block = 0; block < 500; ++block)
    {
        automation.moveAll();
        juce::AudioBuffer<float> part (buffer.getArrayOfWritePointers(), 2, random.nextInt (513));
        const RealtimeGuard guard;
        tested.processor.processBlock (part, midi);
        const auto counts = guard.getCounts();
        ASSERT_EQ (counts.allocations + counts.locks + counts.systemCalls, 0) << "block " << block;
    }
}

TEST_F (ProcessorTest, PassesTheSignalRoundedTo24BitsThroughItsDefaults)
{
    // With the filter out of the way and the dry signal off, a unity wet gain leaves the rounding.
    tested.set ("bypassFilter", 1.0);
    tested.set ("bypassDrySignal", 1.0);
    tested.set ("wet", 0.0);
    settle();
    const auto input = signals::makeBusySignal (2, 512, 0.9f);
    auto output = input;
    tested.process (output);

    for (int i = 0; i < 512; ++i)
    {
        const auto rounded = std::nearbyint (input.getSample (0, i) * 8388608.0f) / 8388608.0f;
        EXPECT_EQ (output.getSample (0, i), rounded) << i;
    }
}

TEST_F (ProcessorTest, HoldsForAHundredthOfASecondAtFullReduction)
{
    tested.set ("bypassFilter", 1.0);
    tested.set ("bypassDrySignal", 1.0);
    tested.set ("wet", 0.0);
    tested.set ("downsamp", 100.0);
    settle (44100.0);
    tested.processor.prepareToPlay (44100.0, 512); // restarts the hold
    std::vector<int> changes;
    auto last = -1.0f;

    for (int block = 0; block < 10; ++block)
    {
        juce::AudioBuffer<float> ramp (2, 512);

        for (int i = 0; i < 512; ++i)
            for (int channel = 0; channel < 2; ++channel)
                ramp.setSample (channel, i, 0.0001f * static_cast<float> (block * 512 + i));

        tested.process (ramp);

        for (int i = 0; i < 512; ++i)
            if (const auto x = ramp.getSample (1, i); x != last)
            {
                changes.push_back (block * 512 + i);
                last = x;
            }
    }

    ASSERT_GT (changes.size(), 10u);

    for (size_t i = 1; i < changes.size(); ++i)
        EXPECT_EQ (changes[i] - changes[i - 1], 441);
}

TEST_F (ProcessorTest, HoldsTheChannelsOfAWideBufferByOneClock)
{
    tested.set ("bypassFilter", 1.0);
    tested.set ("bypassDrySignal", 1.0);
    tested.set ("downsamp", 60.0);
    settle();

    for (int block = 0; block < 10; ++block)
    {
        auto wide = signals::makeBusySignal (4, 333, 0.9f);

        for (int channel = 2; channel < 4; ++channel)
            wide.copyFrom (channel, 0, wide, channel - 2, 0, 333);

        tested.process (wide);

        for (int i = 0; i < 333; ++i)
            for (int channel = 2; channel < 4; ++channel)
                ASSERT_EQ (wide.getSample (channel, i), wide.getSample (channel - 2, i)) << i;
    }
}

TEST_F (ProcessorTest, FiltersAsTheKnobsSay)
{
    struct Row
    {
        double type, frequency, expectedDb, tolerance;
    };

    // Four poles at 1 kHz: -12 dB at the cutoff itself, then 24 dB an octave.
    const Row rows[] = { { 0.0, 50.0, 0.0, 0.3 },     { 0.0, 1000.0, -12.0, 1.0 },
                         { 0.0, 8000.0, -72.6, 4.0 }, { 1.0, 15000.0, 0.0, 0.5 },
                         { 1.0, 1000.0, -12.0, 1.0 }, { 1.0, 125.0, -72.6, 4.0 } };

    for (const auto& row : rows)
    {
        tested.set ("filterType", row.type);
        tested.set ("lowpassFreq", 1000.0);
        tested.set ("hipassFreq", 1000.0);
        tested.set ("bypassDrySignal", 1.0);
        tested.set ("wet", 0.0);
        settle();
        auto sine = signals::makeSine (2, 48000, row.frequency, 48000.0, 0.05f);
        const auto inputDb = signals::getLevel (sine, 0, 24000);
        tested.process (sine);
        EXPECT_NEAR (signals::getLevel (sine, 0, 24000) - inputDb, row.expectedDb, row.tolerance)
            << row.type << " at " << row.frequency;
    }
}

TEST_F (ProcessorTest, ClearsTheFilterOnATransportJumpUnlessTheHostIsLogic)
{
    for (const auto isLogic : { false, true })
    {
        tested.processor.setHostIsLogic (isLogic);
        tested.set ("lowpassFreq", 30.0);
        tested.set ("bypassDrySignal", 1.0);
        settle();
        auto loud = signals::makeConstant (2, 512, 0.9f);
        juce::AudioPlayHead::PositionInfo info;
        info.setIsPlaying (true);
        info.setTimeInSamples (0);
        tested.playHead.position = info;
        tested.process (loud);

        info.setTimeInSamples (1'000'000);
        tested.playHead.position = info;
        auto silence = signals::makeConstant (2, 512, 0.0f);
        tested.process (silence);
        EXPECT_EQ (silence.getMagnitude (0, 512) == 0.0f, ! isLogic);
        tested.playHead.position = {};
    }
}

TEST_F (ProcessorTest, ConvertsBetweenFreeAndSyncedRates)
{
    juce::AudioPlayHead::PositionInfo info;
    info.setBpm (120.0);
    info.setTimeSignature (juce::AudioPlayHead::TimeSignature{ 4, 4 });
    tested.playHead.position = info;
    tested.processor.prepareToPlay (48000.0, 512);

    tested.set ("lfoSyncedPeriod", 3.0);
    tested.set ("lfoFreeRate", 2.0);
    tested.set ("lfoSyncOrFree", 1.0);
    EXPECT_EQ (tested.get ("lfoSyncedPeriod"), 19.0) << "half a second is a quarter note";

    tested.set ("lfoSyncedPeriod", 22.0);
    tested.set ("lfoSyncOrFree", 0.0);
    EXPECT_NEAR (tested.get ("lfoFreeRate"), 4.0, 1e-5) << "an eighth at 120 bpm";

    tested.set ("lfoSyncOrFree", 1.0);
    tested.set ("lfoSyncedPeriod", 32.0);
    tested.set ("lfoSyncOrFree", 0.0);
    EXPECT_EQ (tested.get ("lfoFreeRate"), 10.0) << "the knob ends there";

    for (const auto noTempo : { 0.0, -120.0, std::numeric_limits<double>::quiet_NaN() })
    {
        info.setBpm (noTempo);
        tested.playHead.position = info;
        tested.processor.prepareToPlay (48000.0, 512);
        tested.set ("lfoSyncOrFree", 1.0);
        tested.set ("lfoSyncedPeriod", 19.0);
        tested.set ("lfoSyncOrFree", 0.0);
        EXPECT_NEAR (tested.get ("lfoFreeRate"), 1.0 / 6.0, 1e-5) << "a quarter at 10 bpm";
    }
}

TEST_F (ProcessorTest, MakesSoundWithoutAPlayHeadOrWithAnEmptyOne)
{
    tested.set ("lfoSyncOrFree", 1.0);
    tested.set ("filterFreqModDepth", 100.0);
    tested.processor.setPlayHead (nullptr);
    settle();
    tested.processor.setPlayHead (&tested.playHead);
    tested.playHead.position = juce::AudioPlayHead::PositionInfo();
    settle();
    auto sine = signals::makeSine (2, 512, 100.0, 48000.0, 0.5f);
    tested.process (sine);
    EXPECT_GT (sine.getMagnitude (0, 512), 0.1f);
}

} // namespace
