// The resonant four-pole high-pass ladder.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/SoftClipper.h"
#include "framework/dsp/ZembraFilter.h"
#include "product/dsp/LadderCoefficients.h"

/** The partner of the low-pass ladder: each stage hands on what its one-pole low-pass leaves over;
    the states of stages 1 and 3 are soft-clipped. [audio thread]
*/
class VorloHiPassFilter final : public zembra::ZembraFilter
{
public:
    VorloHiPassFilter();

    void prepare (float sampleRate, int blockSize) override;
    void reset() override { state = {}; }
    void process (float* samples, int numSamples) override;

    float process (float x) override
    {
        const auto g = coefficients.g;
        const auto b = coefficients.b;
        const auto k = coefficients.feedback;
        const auto h = 1.0f - g;
        auto& [s1, s2, s3, s4] = state;

        const auto v = x * coefficients.inputGain;
        const auto y = ((((h * v - s1) * h - s2) * h - s3) * h - s4) / (h * h * h * h * k + 1.0f);

        const auto e1 = v - k * y;
        const auto u1 = g * e1;
        const auto l1 = u1 + s1;
        s1 = clipper.clip (u1 - b * l1);

        const auto e2 = e1 - l1;
        const auto u2 = g * e2;
        const auto l2 = u2 + s2;
        s2 = u2 - b * l2;

        const auto e3 = e2 - l2;
        const auto u3 = g * e3;
        const auto l3 = u3 + s3;
        s3 = clipper.clip (u3 - b * l3);

        const auto e4 = e3 - l3;
        const auto u4 = g * e4;
        s4 = u4 - (u4 + s4) * b;
        return y * coefficients.outputGain;
    }

    /** Sets the cutoff in Hz, at least 2; above half the sample rate that is taken instead. */
    void setCutoff (float cutoff) noexcept { coefficients.setCutoff (cutoff); }

    /** Sets the resonance, 0 to 1: at 1 just on the edge of self-oscillation. */
    void setResonance (float resonance) noexcept { coefficients.setResonance (resonance); }

private:
    LadderCoefficients coefficients;
    LadderState state;
    zembra::SoftClipper clipper;
};
