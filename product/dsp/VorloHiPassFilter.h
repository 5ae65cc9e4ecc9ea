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

    /** The filter's formula. */
    template <typename Sample>
    static Sample process (Sample x, const LadderTuning<Sample>& tuning, LadderState<Sample>& state,
                           const zembra::SoftClipper& clipper) noexcept
    {
        const auto g = tuning.g;
        const auto b = tuning.b;
        const auto h = Sample (1.0f) - g;
        auto& [s1, s2, s3, s4] = state;

        // What a steady feedback comes to is worked out once, before a loop.
        const auto outputGain = tuning.feedback + Sample (1.0f);
        const auto inputGain = Sample (1.0f) / outputGain;

        const auto v = x * inputGain;
        const auto y = ((((h * v - s1) * h - s2) * h - s3) * h - s4) / tuning.estimate;

        const auto e1 = v - tuning.feedback * y;
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
        return y * outputGain;
    }

    void prepare (float sampleRate, int blockSize) override;
    void reset() override { state = {}; }
    void process (float* samples, int numSamples) override;

    float process (float x) override { return process (x, coefficients.tuning, state, clipper); }

    /** Sets the cutoff in Hz, at least 2; above half the sample rate that is taken instead. */
    void setCutoff (float cutoff) noexcept
    {
        if (coefficients.setCutoff (cutoff))
            updateEstimate();
    }

    /** Sets the resonance, 0 to 1: at 1 just on the edge of self-oscillation. */
    void setResonance (float resonance) noexcept
    {
        if (coefficients.setResonance (resonance))
            updateEstimate();
    }

    /** Writes the tunings for moving cutoffs, in Hz, and resonances, fast and not quite exactly. */
    void trace (const float* cutoffs, const float* resonances, int numSamples,
                LadderTuning<zembra::Control>& controls) noexcept;

    const LadderTuning<float>& getTuning() const noexcept { return coefficients.tuning; }
    LadderState<float>& getState() noexcept { return state; }
    const zembra::SoftClipper& getClipper() const noexcept { return clipper; }

    /** Takes another channel's tuning over. */
    void tuneLike (const VorloHiPassFilter& other) noexcept { coefficients = other.coefficients; }

private:
    void updateEstimate() noexcept;

    LadderCoefficients coefficients;
    LadderState<float> state;
    zembra::SoftClipper clipper;
};
