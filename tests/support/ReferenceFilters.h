// The two ladder filters of the reference engine and the per-channel switch between them.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ReferenceRamp.h"

#include <array>
#include <memory>
#include <vector>

namespace reference
{

/** A four-pole ladder with a feedback estimate, soft-clipped at its first and third stage. */
class LadderFilter
{
public:
    virtual ~LadderFilter() = default;
    virtual float process (float x) = 0;

    /** Takes the sample rate in Hz and clears the stages. */
    void prepare (float newSampleRate);
    void reset() { s1 = s2 = s3 = s4 = 0.0f; }

    /** Cutoff in Hz, held at Nyquist; ignored when it is the effective one already. */
    void setCutoff (float frequency);

    /** Resonance 0 to 1; ignored when unchanged. */
    void setResonance (float newResonance);

protected:
    float feedback = 0.0f, inputGain = 1.0f, outputGain = 1.0f;
    float g = 0.0f, b = 0.0f;
    float s1 = 0.0f, s2 = 0.0f, s3 = 0.0f, s4 = 0.0f;

private:
    void computeCoefficients();

    float targetCutoff = 0.0f, cutoff = 0.0f, resonance = 0.0f;
    float sampleRate = 0.0f, nyquist = 0.0f, invSampleRate = 0.0f;
};

class LowPassFilter final : public LadderFilter
{
public:
    float process (float x) override;
};

class HiPassFilter final : public LadderFilter
{
public:
    float process (float x) override;
};

/** One channel's pair of filters (0 low-pass, 1 high-pass) with its switch and on/off fades. */
class SwitchableFilter
{
public:
    SwitchableFilter();

    void prepare (float sampleRate);
    void reset();
    void select (int type, bool enabled);
    LadderFilter& selected() { return *filters[static_cast<size_t> (current)]; }

    /** One sample of a filter that is on. */
    float processSample (float x);

    /** A block of a filter that is off: fades to the dry signal, then does nothing. */
    void processBlock (float* samples, int n);

private:
    void blendSwitch (float* samples, int n);
    void blendFade (float* samples, int n);
    void countFade (int n);
    float fadeTarget() const { return active ? 1.0f : 0.0f; }

    std::array<std::unique_ptr<LadderFilter>, 2> filters;
    std::vector<float> dryCopy;
    GainRamp fade;
    bool active = true, fading = true, switching = false, bypassed = false;
    int fadeCount = 0, switchCount = 0, current = 0, previous = 0;
};

} // namespace reference
