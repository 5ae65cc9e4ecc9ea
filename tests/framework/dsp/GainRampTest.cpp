// The two laws of the gain ramp.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/dsp/GainRamp.h"

#include <gtest/gtest.h>

namespace
{

using zembra::GainRamp;

/** The gains of a block as heard on a constant. */
juce::AudioBuffer<float> apply (GainRamp& ramp, int numSamples, float target)
{
    juce::AudioBuffer<float> buffer (1, numSamples);
    juce::FloatVectorOperations::fill (buffer.getWritePointer (0), 1.0f, numSamples);
    ramp.applyToBlock (buffer, numSamples, target);
    return buffer;
}

TEST (GainRampTest, IsLinearOver256SamplesOfALongBlock)
{
    GainRamp ramp;
    const auto gains = apply (ramp, 1000, 0.5f);

    for (int i = 0; i < 1000; ++i)
        EXPECT_NEAR (gains.getSample (0, i),
                     i < 256 ? 1.0f - 0.5f * static_cast<float> (i) / 256.0f : 0.5f, 1e-5f)
            << i;
}

TEST (GainRampTest, CoversAShareOfTheWayInAShortBlock)
{
    GainRamp ramp;
    apply (ramp, 64, 0.0f);
    EXPECT_FLOAT_EQ (ramp.getGain(), 0.75f);
    apply (ramp, 64, 0.0f);
    EXPECT_FLOAT_EQ (ramp.getGain(), 0.75f * 0.75f);

    for (int i = 0; i < 100; ++i)
        apply (ramp, 64, 0.0f);

    EXPECT_EQ (ramp.getGain(), 0.0f) << "ends on its target";
}

TEST (GainRampTest, ClosesA256thOfTheDistanceByEverySingleSample)
{
    GainRamp ramp;
    auto expected = 1.0;

    for (int i = 0; i < 500; ++i)
    {
        expected += (0.25 - expected) / 256.0;
        ASSERT_NEAR (ramp.advance (0.25f), expected, 1e-5);
    }

    for (int i = 0; i < 5000; ++i)
        ramp.advance (0.25f);

    EXPECT_EQ (ramp.getGain(), 0.25f) << "ends on its target";
}

TEST (GainRampTest, SteersAControlAsItRampsABlock)
{
    for (const auto numSamples : { 1, 37, 255, 256, 257, 2000 })
    {
        GainRamp ramp, steering;
        zembra::Control control;

        for (const auto target : { 0.3f, 2.0f, 2.0f, 0.0f })
        {
            const auto gains = apply (ramp, numSamples, target);
            steering.beginBlock (numSamples, target, control);
            const auto numSteered = std::min (numSamples, 256);
            control.spread (numSteered);

            for (int i = 0; i < numSamples; ++i)
            {
                if (i == 256)
                    steering.rest (control);

                const auto gain = i < 256 ? control.getCurve()[i] : control.getValue();
                ASSERT_EQ (gains.getSample (0, i), gain) << i << " of " << numSamples;
            }
        }
    }
}

} // namespace
