// What the two ladders have in common: tuning, resonance and the state of one channel.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/** The tuning and resonance of a ladder, worked out only when one of them moves.

    The stages are bilinear transforms of one-pole filters: g = t / (t + 2) and b = (t - 2) / (t + 2)
    with t = 2 tan (pi f / rate), the pre-warped cutoff. [audio thread]
*/
struct LadderCoefficients
{
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

    /** Sets the resonance, 0 to 1; true if that is a change. The input is lowered as the feedback
        rises, and the output raised by as much.
    */
    bool setResonance (float newResonance) noexcept
    {
        if (newResonance == res)
            return false;

        res = newResonance;
        feedback = res * 3.99999f;
        inputGain = 1.0f / (feedback + 1.0f);
        outputGain = feedback + 1.0f;
        return true;
    }

    float targetCutoff = 0.0f; ///< as asked for, Hz
    float cutoff = 0.0f;       ///< in effect, Hz
    float res = 0.0f;
    float feedback = 0.0f;
    float inputGain = 1.0f;
    float outputGain = 1.0f;
    float g = 0.0f;
    float b = 0.0f;
    float sampleRate = 0.0f;

private:
    void tune (float newCutoff) noexcept;

    float nyquist = 0.0f;
    float invSampleRate = 0.0f;
};

/** The states of the four stages. */
struct LadderState
{
    float s1 = 0.0f, s2 = 0.0f, s3 = 0.0f, s4 = 0.0f;
};
