// The stages by their laws: grid, gain, hold and peak.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/CrushStage.h"
#include "product/dsp/DriveStage.h"
#include "product/dsp/SampleHoldStage.h"
#include "product/dsp/VorloHiPassFilter.h"
#include "product/dsp/VorloLowPassFilter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <tuple>

namespace
{

TEST (StagesTest, CrushLeavesTheLevelsOfItsBits)
{
    // 24 bits less 23 times the fourth root of the amount: 1 leaves one bit, 1/16 leaves 12.5.
    for (const auto& [amount, bits] : { std::pair (1.0f, 1.0), std::pair (0.0625f, 12.5) })
    {
        CrushStage stage;
        stage.steer (amount);
        const auto scale = stage.getScale().getValue();
        EXPECT_NEAR (scale, std::exp2 (bits - 1.0), 1e-3);

        std::set<float> levels;

        for (float x = -1.0f; x <= 1.0f; x += 1e-4f)
        {
            const auto y = CrushStage::process (x, scale);
            levels.insert (y);
            ASSERT_LE (std::abs (y - x), 0.5f / scale + 1e-6f);
        }

        EXPECT_EQ (levels.size(), 2u * static_cast<size_t> (scale + 0.01f) + 1u);
    }
}

TEST (StagesTest, DriveFollowsItsFormula)
{
    const zembra::SoftClipper clipper (1e-5f);

    // For small signals the clip has unit gain, for large ones it comes close to 1.
    EXPECT_NEAR (clipper.clip (1e-4f), 1e-4f, 1e-7f);
    EXPECT_NEAR (clipper.clip (-1e-4f), -1e-4f, 1e-7f);
    EXPECT_NEAR (clipper.clip (50.0f), 1.0f, 1e-4f);
    EXPECT_NEAR (clipper.clip (1.0f), 32.0f / 44.0f, 1e-4f);

    DriveStage stage (1e-5f);

    for (int block = 0; block < 2; ++block)
        stage.steer ({ 0, 512, 512 }, 0.5f);

    const auto& [input, dry, wet] = stage.getControls();
    EXPECT_EQ (stage.getMode(), DriveStage::Mode::steered);
    EXPECT_EQ (input.getValue(), 4.0f) << "16^d";
    EXPECT_EQ (dry.getValue(), 0.5f);
    EXPECT_EQ (wet.getValue(), 0.5f);
    EXPECT_NEAR (DriveStage::process<2> (1e-4f, 4.0f, 0.5f, 0.5f, clipper), 2.5e-4f, 1e-6f);

    stage.steer ({ 0, 512, 512 }, 0.0f);
    stage.steer ({ 0, 512, 512 }, 0.0f);
    EXPECT_EQ (stage.getMode(), DriveStage::Mode::nothing);
}

TEST (StagesTest, HoldLastsForItsLengthRoundedUp)
{
    for (const auto& [length, expected] :
         { std::pair (1.0f, 1), std::pair (1.5f, 2), std::pair (3.0f, 3), std::pair (441.0f, 441) })
    {
        SampleHoldStage::State<float> state{ 1.0f, 0.0f };

        for (int i = 0; i < 3 * expected; ++i)
            ASSERT_EQ (state.process (static_cast<float> (i), length),
                       static_cast<float> (i - i % expected))
                << length;
    }

    SampleHoldStage stage;
    stage.prepare (44100.0f);
    stage.steer (1.0f);
    EXPECT_NEAR (stage.getHoldLength().getValue(), 441.0f, 1e-3f);
    stage.prepare (88200.0f);
    stage.steer (1.0f);
    EXPECT_NEAR (stage.getHoldLength().getValue(), 882.0f, 1e-3f) << "the knob needn't move";
    stage.steer (0.0f);
    EXPECT_TRUE (stage.isTransparent());
}

/** The gain in dB at a frequency, from the response to a quiet impulse. */
template <typename Filter>
double getGain (float cutoff, float resonance, double frequency)
{
    constexpr double sampleRate = 48000.0;
    Filter filter;
    filter.prepare (static_cast<float> (sampleRate), 512);
    filter.setCutoff (cutoff);
    filter.setResonance (resonance);
    double re = 0.0, im = 0.0;

    for (int i = 0; i < 20000; ++i)
    {
        const auto y = static_cast<double> (filter.process (i == 0 ? 1e-3f : 0.0f)) * 1e3;
        const auto angle = 6.283185307179586 * frequency * i / sampleRate;
        re += y * std::cos (angle);
        im -= y * std::sin (angle);
    }

    return 10.0 * std::log10 (re * re + im * im);
}

TEST (StagesTest, ResonanceRaisesTheCutoff)
{
    // An ideal ladder, 1 / ((1 + s)^4 + k), has its peak just below or above the cutoff, with the
    // gain sqrt (2) / (4 - k): 17 dB at k = 3.8.
    const auto check = [] (auto filter)
    {
        using Filter = decltype (filter);
        auto best = -200.0, at = 0.0;

        for (double f = 500.0; f < 2000.0; f *= 1.01)
            if (const auto gain = getGain<Filter> (1000.0f, 0.95f, f); gain > best)
                std::tie (best, at) = std::pair (gain, f);

        EXPECT_NEAR (at, 1000.0, 40.0);
        EXPECT_NEAR (best, 17.0, 0.5);
        EXPECT_LT (getGain<Filter> (1000.0f, 0.0f, 1000.0), -11.0) << "nothing without resonance";
    };

    check (VorloLowPassFilter());
    check (VorloHiPassFilter());
}

} // namespace
