// The loop in vector registers against the same loop in plain floats, bit for bit.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/ChainLoop.h"
#include "tests/support/Signals.h"

#include <gtest/gtest.h>

#include <bit>

namespace
{

using zembra::Chunk;

/** All stages of a chain, which a test steers by random numbers. */
template <typename Frames>
class Chain
{
public:
    explicit Chain (float sampleRate)
    {
        hold.prepare (sampleRate);
        hold.matchChannels (2);
        filter.prepare (sampleRate, 512);
    }

    /** Runs one block the way the processor does, with what a seed stands for. */
    void process (juce::AudioBuffer<float>& buffer, int seed)
    {
        juce::Random random (seed);
        const auto numSamples = buffer.getNumSamples();
        const auto drivePull = random.nextInt (3) == 0 ? 0.7f : 0.0f;
        const auto otherPull = random.nextInt (3) == 0 ? 0.6f : 0.0f;
        const auto driveAmount = random.nextInt (3) == 0 ? 0.0f : random.nextFloat();
        const auto crushAmount = random.nextFloat();
        const auto holdAmount = random.nextInt (3) == 0 ? 0.0f : random.nextFloat() * 0.4f;
        numChannels = random.nextInt (4) == 0 ? 1 : 2;
        const auto settles = random.nextBool();
        mix.dry.set (random.nextFloat());
        mix.wet.set (random.nextFloat());

        // A new type or a new knob begins a glide; otherwise the last one goes on.
        if (! settles)
            settings = { random.nextInt (2), true, {}, {}, otherPull, otherPull };

        settings.freq.fill (settles ? settings.freq[0] : 20.0f + 30000.0f * random.nextFloat());
        settings.res.fill (settles ? settings.res[0] : random.nextFloat());
        filter.begin (settings);

        std::vector<float> lfo (static_cast<size_t> (numSamples));
        std::generate (lfo.begin(), lfo.end(), [&] { return random.nextFloat(); });
        auto dry = buffer;

        for (int start = 0; start < numSamples; start += 256)
        {
            const Chunk chunk{ start, std::min (256, numSamples - start), numSamples };
            const auto* curve = lfo.data() + start;

            if (drivePull > 0.0f)
                drive.steer (chunk, driveAmount, drivePull, curve);
            else
                drive.steer (chunk, driveAmount);

            if (otherPull > 0.0f)
            {
                crush.steer (chunk, crushAmount, otherPull, curve);
                hold.steer (chunk, holdAmount, otherPull, curve);
            }
            else
            {
                crush.steer (crushAmount);
                hold.steer (holdAmount);
            }

            filter.steer (chunk, curve);
            const auto right = numChannels - 1;
            ChainLoop<Frames> loop ({ drive, crush, hold, &filter, &mix },
                                    { { 0, right },
                                      buffer.getWritePointer (0, start),
                                      buffer.getWritePointer (right, start),
                                      dry.getReadPointer (0, start),
                                      dry.getReadPointer (right, start) },
                                    chunk.length);
            largest = std::max (largest, loop.run());
        }
    }

    float largest = 0.0f;
    int numChannels = 2;

private:
    DriveStage drive{ 1e-5f };
    CrushStage crush;
    SampleHoldStage hold;
    FilterStage filter;
    FilterStage::Settings settings{ 0, true, {}, {}, 0.0f, 0.0f };
    zembra::MixControls mix;
};

TEST (ChainLoopTest, GivesTheSameBitsInVectorsAndInFloats)
{
    juce::FloatVectorOperations::disableDenormalisedNumberSupport (true);

    for (const auto sampleRate : { 8000.0f, 44100.0f, 384000.0f })
    {
        Chain<zembra::VectorFrames> fast (sampleRate);
        Chain<zembra::ScalarFrames> plain (sampleRate);
        juce::Random random (static_cast<int> (sampleRate));

        for (int block = 0; block < 200; ++block)
        {
            const auto numSamples = 1 + random.nextInt (random.nextBool() ? 40 : 700);
            auto ours = signals::makeBusySignal (2, numSamples, block % 10 == 0 ? 5.0f : 0.9f);
            auto theirs = ours;
            fast.process (ours, block);
            plain.process (theirs, block);

            for (int channel = 0; channel < 2; ++channel)
                for (int i = 0; i < numSamples; ++i)
                    ASSERT_EQ (std::bit_cast<std::uint32_t> (ours.getSample (channel, i)),
                               std::bit_cast<std::uint32_t> (theirs.getSample (channel, i)))
                        << "block " << block << ", channel " << channel << ", sample " << i;

            // One frame is left over at the end of an odd block: its twin may count, too.
            if (numSamples % 2 == 0)
            {
                ASSERT_EQ (fast.largest, plain.largest);
            }
        }
    }
}

TEST (ChainLoopTest, ReportsTheLargestMagnitudeOfItsOutput)
{
    Chain<zembra::VectorFrames> chain (48000.0f);

    for (int block = 0; block < 50; ++block)
    {
        auto buffer = signals::makeBusySignal (2, 300, 3.0f);
        chain.largest = 0.0f;
        chain.process (buffer, block);
        buffer.setSize (chain.numChannels, 300, true);
        EXPECT_EQ (chain.largest, buffer.getMagnitude (0, 300)) << "block " << block;
    }
}

} // namespace
