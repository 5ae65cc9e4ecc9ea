// Finite input gives finite output without subnormals, whatever a host says or does.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/TestProcessor.h"
#include "tools/soak/OutputWatch.h"
#include "tools/soak/RandomAutomation.h"
#include "tools/soak/RandomSignal.h"
#include "tools/soak/RandomTransport.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

using juce::AudioBuffer;

/** The first sample that is infinite, no number or subnormal, in words; empty if there is none. */
std::string findFault (const AudioBuffer<float>& buffer)
{
    for (int channel = 0; channel < buffer.getNumChannels(); ++channel)
        for (int i = 0; i < buffer.getNumSamples(); ++i)
            if (const auto x = buffer.getSample (channel, i);
                ! std::isfinite (x) || soak::isSubnormal (x))
                return std::to_string (x) + " in channel " + std::to_string (channel) + ", sample "
                       + std::to_string (i);

    return {};
}

void expectParamsInRange (VorloProcessor& processor)
{
    for (const auto* param : processor.getParamSet())
    {
        EXPECT_GE (param->getValue(), param->getMinValue()) << param->getId();
        EXPECT_LE (param->getValue(), param->getMaxValue()) << param->getId();
    }
}

/** The settings of a test as text, to make it again by hand. */
std::string describe (VorloProcessor& processor)
{
    juce::StringArray words;

    for (const auto* param : processor.getParamSet())
        words.add (param->getId() + "=" + juce::String (param->getValue()));

    return words.joinIntoString (" ").toStdString();
}

class FiniteTest : public testing::Test
{
protected:
    void prepareAnew()
    {
        constexpr auto inf = std::numeric_limits<double>::infinity();
        constexpr auto nan = std::numeric_limits<double>::quiet_NaN();
        constexpr double rates[] = { 44100.0,  48000.0, 96000.0, 192000.0, 8000.0, 22050.0,
                                     384000.0, 768e3,   1.0,     0.0,      -5.0,   100.0,
                                     400.0,    2000.0,  47999.9, 1e12,     inf,    nan };
        tested.processor.prepareToPlay (rates[random.nextInt (std::size (rates))],
                                        random.nextInt (4) == 0 ? 0 : random.nextInt (2048));
    }

    /** Any length, more often a short one. */
    int getLength (int longest)
    {
        return random.nextInt (1 + random.nextInt (1 + random.nextInt (longest)));
    }

    AudioBuffer<float> processBlock (int numSamples, int numChannels = 2)
    {
        AudioBuffer<float> buffer (numChannels, numSamples);
        (random.nextInt (10) == 0 ? loudestSignal : signal).fill (buffer, numSamples);
        transport.advance (numSamples, 48000.0);
        tested.process (buffer);
        return buffer;
    }

    TestProcessor tested;
    juce::Random random{ 31 };
    soak::RandomTransport transport{ 32, soak::RandomTransport::Manners::wild };
    soak::RandomSignal signal{ 33, 30.0f };
    soak::RandomSignal loudestSignal{ 35, std::numeric_limits<float>::max() };
    soak::RandomAutomation automation{ tested.processor, 34, true };
};

TEST_F (FiniteTest, HoldsForEverySettingAndBlockLength)
{
    tested.processor.setPlayHead (&transport);
    tested.processor.prepareToPlay (48000.0, 512);

    for (int setting = 0; setting < 5000; ++setting)
    {
        automation.moveAll();

        for (int block = 0; block < 3; ++block)
        {
            const auto fault = findFault (processBlock (getLength (8193)));
            ASSERT_EQ (fault, "") << "setting " << setting << ": " << describe (tested.processor);
        }
    }

    expectParamsInRange (tested.processor);
    tested.processor.setPlayHead (nullptr);
}

TEST_F (FiniteTest, HoldsWithoutPreparationAndWithANewRateAtEveryTurn)
{
    tested.processor.setPlayHead (&transport);

    for (int turn = 0; turn < 2000; ++turn)
    {
        if (turn > 10)
            prepareAnew();

        automation.moveAll();
        const auto fault = findFault (processBlock (getLength (4096), 1 + random.nextInt (3)));
        ASSERT_EQ (fault, "") << "turn " << turn << ": " << describe (tested.processor);
    }

    tested.processor.setPlayHead (nullptr);
}

TEST_F (FiniteTest, HoldsForAnyNumberOfChannels)
{
    tested.processor.prepareToPlay (48000.0, 512);

    for (int turn = 0; turn < 500; ++turn)
    {
        automation.moveAll();
        const auto fault = findFault (processBlock (getLength (2048), 1 + random.nextInt (6)));
        ASSERT_EQ (fault, "") << "turn " << turn << ": " << describe (tested.processor);
    }
}

TEST_F (FiniteTest, SurvivesABlockWithoutChannelsAndAVeryLongOne)
{
    tested.processor.prepareToPlay (48000.0, 512);
    automation.moveAll();
    processBlock (100, 0);
    processBlock (0, 0);
    EXPECT_EQ (findFault (processBlock (100'000)), "");
    EXPECT_EQ (findFault (processBlock (512)), "");
}

TEST_F (FiniteTest, GivesTheSameSoundInOneBufferForBothChannels)
{
    // A host may hand in the same memory twice. That sound is nobody's business, but it is finite.
    tested.processor.prepareToPlay (48000.0, 512);
    std::vector<float> memory (512);

    for (int turn = 0; turn < 200; ++turn)
    {
        automation.moveAll();
        float* channels[] = { memory.data(), memory.data() };
        AudioBuffer<float> buffer (channels, 2, 512);
        signal.fill (buffer, 512);
        tested.process (buffer);
        ASSERT_EQ (findFault (buffer), "") << "turn " << turn;
    }
}

TEST_F (FiniteTest, RidsItselfOfNanAndInfinityInATenthOfASecond)
{
    constexpr auto nan = std::numeric_limits<float>::quiet_NaN();
    constexpr auto inf = std::numeric_limits<float>::infinity();
    constexpr auto huge = std::numeric_limits<float>::max();
    constexpr int blockSize = 240, blocksInATenth = 20;
    soak::RandomAutomation settings (tested.processor, 35, false);
    tested.processor.prepareToPlay (48000.0, blockSize);

    for (int turn = 0; turn < 300; ++turn)
    {
        settings.moveAll();
        auto poisoned = processBlock (blockSize);

        for (const auto poison : { nan, inf, -inf, huge, -huge })
        {
            signal.fill (poisoned, blockSize);
            poisoned.setSample (random.nextInt (2), random.nextInt (blockSize), poison);
            tested.process (poisoned);

            for (int block = 0; block < blocksInATenth; ++block)
                processBlock (blockSize);

            const auto clean = processBlock (blockSize);
            ASSERT_EQ (findFault (clean), "")
                << "turn " << turn << " after " << poison << ": " << describe (tested.processor);
        }
    }
}

TEST_F (FiniteTest, SilentDryPathKeepsAnInfinityOut)
{
    tested.set ("bypassDrySignal", 1.0);
    tested.processor.prepareToPlay (48000.0, 256);

    for (int block = 0; block < 3; ++block)
    {
        AudioBuffer<float> buffer (2, 256);
        const auto input = block == 2 ? std::numeric_limits<float>::infinity() : 0.1f;

        for (int channel = 0; channel < 2; ++channel)
            juce::FloatVectorOperations::fill (buffer.getWritePointer (channel), input, 256);

        tested.process (buffer);
        EXPECT_EQ (findFault (buffer), "") << "block " << block;
    }
}

TEST_F (FiniteTest, IsHeardAgainAfterAnInfinity)
{
    // Finite isn't enough: a limiter that took an infinite peak would leave silence for good.
    for (const auto poison :
         { std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN() })
    {
        TestProcessor fresh;
        fresh.processor.prepareToPlay (48000.0, 480);
        AudioBuffer<float> buffer (2, 480);

        for (int block = 0; block < 40; ++block)
        {
            for (int i = 0; i < 480; ++i)
                for (int channel = 0; channel < 2; ++channel)
                    buffer.setSample (channel, i, 0.5f * std::sin (0.05f * static_cast<float> (i)));

            if (block == 20)
                buffer.setSample (0, 7, poison);

            fresh.process (buffer);
        }

        EXPECT_GT (buffer.getRMSLevel (0, 0, 480), 0.1f) << poison;
        EXPECT_NEAR (buffer.getRMSLevel (0, 0, 480), buffer.getRMSLevel (1, 0, 480), 0.01f);
    }
}

} // namespace
