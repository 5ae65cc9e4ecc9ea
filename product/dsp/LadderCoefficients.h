// What the two ladders have in common: tuning, resonance and the state of one channel.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/Control.h"

/** The numbers in a ladder's formula: floats, lanes of them, or the controls that steer them. */
template <typename Value>
struct LadderTuning
{
    Value g, b;     ///< of the stages
    Value feedback; ///< 0 to 4
    Value estimate; ///< what the filter makes of g and the feedback for its estimate

    template <typename Function>
    void forEach (Function&& function)
    {
        for (auto* value : { &g, &b, &feedback, &estimate })
            function (*value);
    }

    /** Calls `set (mine, other)` for each number of this and the same of another tuning. */
    template <typename Other, typename Setter>
    void assign (Other&& other, Setter set)
    {
        set (g, other.g);
        set (b, other.b);
        set (feedback, other.feedback);
        set (estimate, other.estimate);
    }
};

/** The states of the four stages. */
template <typename Sample>
struct LadderState
{
    Sample s1{}, s2{}, s3{}, s4{};
};

/** The tuning and resonance of a ladder, worked out only when one of them moves.

    The stages are bilinear transforms of one-pole filters: g = t / (t + 2) and b = (t - 2) / (t + 2)
    with t = 2 tan (pi f / rate), the pre-warped cutoff. [audio thread]
*/
class LadderCoefficients final
{
public:
    /** Takes the sample rate in Hz; works the tuning out again if it is a new one. */
    void prepare (float newSampleRate) noexcept;

    /** Sets the cutoff in Hz, at least 2; above half the sample rate that is taken instead. Returns
        true if the tuning was worked out again, which above half the rate is at every call.
    */
    bool setCutoff (float newCutoff) noexcept
    {
        if (newCutoff == cutoff)
            return false;

        tune (newCutoff);
        return true;
    }

    /** Sets the resonance, 0 to 1; true if that is a change. */
    bool setResonance (float newResonance) noexcept
    {
        if (newResonance == res)
            return false;

        res = newResonance;
        tuning.feedback = res * highestFeedback;
        return true;
    }

    /** Works out the tuning for curves of cutoff, in Hz, and resonance, all but the estimate, in
        forms that differ from the exact ones in the last bits. The next cutoff that is set is worked
        out exactly in any case.
    */
    void trace (const float* cutoffs, const float* resonances, int numSamples,
                LadderTuning<zembra::Control>& controls) noexcept;

    LadderTuning<float> tuning{ 0.0f, 0.0f, 0.0f, 1.0f };

private:
    static constexpr float highestFeedback = 3.99999f;

    void tune (float newCutoff) noexcept;

    float targetCutoff = 0.0f; ///< as asked for, Hz
    float cutoff = 0.0f;       ///< in effect, Hz
    float res = 0.0f;
    float sampleRate = 0.0f;
    float nyquist = 0.0f;
    float invSampleRate = 0.0f;
};
