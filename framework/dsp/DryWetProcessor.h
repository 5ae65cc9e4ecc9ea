// The last stage: dry and wet gains with their link, and the output limiters.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/Param.h"
#include "framework/core/Relaxed.h"
#include "framework/dsp/Chunk.h"
#include "framework/dsp/GainRamp.h"
#include "framework/dsp/MixControls.h"
#include "framework/dsp/OutputLimiter.h"

#include <vector>

namespace zembra
{

class PluginProcessor;

/** Mixes the processed signal with the dry one, each with a gain in dB, and limits the sum.

    Owns the logic of five parameters, which it adds to the processor's set: `dry`, `wet`,
    `bypassDrySignal`, `bypassWetSignal`, `dryWetLink`. While linked, an edit of one gain moves the
    other so that their difference in dB stays; restoring a state moves no partner and takes the
    difference anew, so that a saved pair comes back as it was.
*/
class DryWetProcessor final : public Param::Listener
{
public:
    /** @param minDb  the lowest value of both gains, which stands for silence
        @param maxDb  the highest value of both gains
    */
    DryWetProcessor (PluginProcessor& processor, double minDb, double maxDb);
    ~DryWetProcessor() override;

    void paramChanged (Param* param, double plain, double normalised, int source) override;

    /** Mixes the first `numSamples` samples of `dryBuffer` into `buffer` and limits the result.
        Changes `dryBuffer` too. Allocates only when the host has added output channels.
        [audio thread]
    */
    void process (juce::AudioBuffer<float>& dryBuffer, juce::AudioBuffer<float>& buffer,
                  int numSamples);

    /** Steers a chunk of the mix for a loop that does it itself, and then calls limit(). */
    MixControls& steer (const Chunk& chunk) noexcept;

    MixControls& getControls() noexcept { return controls; }

    /** Limits a block of the mix, whose largest magnitude is known. [audio thread] */
    void limit (juce::AudioBuffer<float>& buffer, int numSamples, float largest);

    /** The five parameters, in the order of the set. */
    const std::vector<Param*>& getParams() const noexcept { return params; }

private:
    Param* makeGain (const char* id, const char* name, double maxDb);
    Param* makeSwitch (const char* id, const char* name);
    float decibelsToGain (double decibels) const;
    void moveDry (double decibels, int source);
    void moveWet (double decibels, int source);
    int matchLimiters (int numChannels);
    void takeLinkOffset() { linkOffset = dry->getValue() - wet->getValue(); }

    PluginProcessor& processor;
    const double minDb;
    Relaxed<float> dryGain, wetGain;
    Relaxed<bool> dryBypassed, wetBypassed, linked;
    Relaxed<double> linkOffset;
    GainRamp dryRamp, wetRamp;
    MixControls controls;
    std::vector<OutputLimiter> limiters;
    std::vector<Param*> params;
    Param* dry = nullptr;
    Param* wet = nullptr;
    Param* bypassDrySignal = nullptr;
    Param* bypassWetSignal = nullptr;
    Param* dryWetLink = nullptr;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (DryWetProcessor)
};

} // namespace zembra
