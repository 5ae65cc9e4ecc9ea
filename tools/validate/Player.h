// Plays sound through an instance, as a host's audio engine does, and watches what comes out.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/soak/RandomTransport.h"
#include "tools/validate/GuardedBlock.h"

#include <juce_audio_processors/juce_audio_processors.h>

#include <functional>
#include <optional>

namespace validate
{

/** Prepares an instance, and releases it in the end. Everything is processed in place. The calls after
    the construction may come from any one thread.
*/
class Player final
{
public:
    enum class Trust
    {
        mustBeFinite, ///< a Fault for a sample that is NaN, infinite or subnormal
        mayBeAnything
    };

    Player (juce::AudioPluginInstance& instanceToUse, double sampleRateToUse,
            int longestBlockToUse);
    ~Player();

    /** From now on the transport jumps and MIDI comes at random. */
    void beRestless (juce::int64 seed);

    /** Uses what processes a bypassed plug-in from now on, or no longer. */
    void setBypassed (bool shouldBeBypassed) noexcept { isBypassed = shouldBeBypassed; }

    /** Plays all of `input` (missing channels are silent) in blocks as long as announced. */
    juce::AudioBuffer<float> play (const juce::AudioBuffer<float>& input,
                                   Trust trust = Trust::mustBeFinite);

    /** The same in blocks of other sizes, 0 to the announced one. */
    juce::AudioBuffer<float> playInBlocks (const juce::AudioBuffer<float>& input,
                                           const std::function<int()>& nextSize,
                                           Trust trust = Trust::mustBeFinite);

    /** Plays this long a silence. */
    juce::AudioBuffer<float> playSilence (double seconds);

    int getNumInputs() const { return instance.getTotalNumInputChannels(); }
    double getSampleRate() const noexcept { return sampleRate; }

    /** The number of samples in this time. */
    int getLength (double seconds) const noexcept;

private:
    void processBlock (juce::AudioBuffer<float>& block);

    juce::AudioPluginInstance& instance;
    const double sampleRate;
    const int longestBlock;
    const bool takesMidi; ///< asked once: an LV2 host looks it up in data that threads share
    GuardedBlock memory;
    juce::MidiBuffer midi;
    soak::RandomTransport transport;
    std::optional<juce::Random> restlessness;
    bool isBypassed = false;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (Player)
};

} // namespace validate
