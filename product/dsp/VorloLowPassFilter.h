// The resonant four-pole low-pass ladder.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/SoftClipper.h"
#include "framework/dsp/ZembraFilter.h"
#include "product/dsp/LadderCoefficients.h"

/** Four bilinear one-pole stages in transposed form (out = g in + s, s' = g in - b out) inside one
    feedback loop whose delay-free output is estimated first; the states of stages 1 and 3 are
    soft-clipped. Compare V. Zavalishin, "The Art of VA Filter Design", on the zero-delay ladder. The
    estimate takes its input unscaled by g, which is this filter's own character. The input is lowered
    as the feedback rises, and the output raised by as much. [audio thread]
*/
class VorloLowPassFilter final : public zembra::ZembraFilter
{
public:
    VorloLowPassFilter();

    /** The filter's formula. */
    template <typename Sample>
    static Sample process (Sample x, const LadderTuning<Sample>& tuning, LadderState<Sample>& state,
                           const zembra::SoftClipper& clipper) noexcept
    {
        const auto g = tuning.g;
        const auto b = tuning.b;
        auto& [s1, s2, s3, s4] = state;

        // What a steady feedback comes to is worked out once, before a loop.
        const auto outputGain = tuning.feedback + Sample (1.0f);
        const auto inputGain = Sample (1.0f) / outputGain;

        const auto v = x * inputGain;
        const auto y = ((((v + s1) * g + s2) * g + s3) * g + s4) * tuning.estimate;

        const auto u1 = (v - y * tuning.feedback) * g;
        const auto w1 = u1 + s1;
        s1 = clipper.clip (u1 - b * w1);

        const auto u2 = g * w1;
        const auto w2 = s2 + u2;
        s2 = u2 - b * w2;

        const auto u3 = g * w2;
        const auto w3 = u3 + s3;
        s3 = clipper.clip (u3 - b * w3);

        s4 = g * w3 - b * y;
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
            updateEstimateScale();
    }

    /** Writes the tunings for moving cutoffs, in Hz, and resonances, fast and not quite exactly. */
    void trace (const float* cutoffs, const float* resonances, int numSamples,
                LadderTuning<zembra::Control>& controls) noexcept;

    const LadderTuning<float>& getTuning() const noexcept { return coefficients.tuning; }
    LadderState<float>& getState() noexcept { return state; }
    const zembra::SoftClipper& getClipper() const noexcept { return clipper; }

    /** Takes another channel's tuning over. */
    void tuneLike (const VorloLowPassFilter& other) noexcept
    {
        coefficients = other.coefficients;
        g4 = other.g4;
    }

private:
    void updateEstimate() noexcept;
    void updateEstimateScale() noexcept;

    LadderCoefficients coefficients;
    LadderState<float> state;
    zembra::SoftClipper clipper;
    float g4 = 0.0f;
};
