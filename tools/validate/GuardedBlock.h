// A block of audio with margins that nobody may write to.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <vector>

namespace validate
{

/** Memory for the channels of a block; before, between and after them lie guards. */
class GuardedBlock final
{
public:
    GuardedBlock (int numChannels, int longestBlock);

    /** A buffer of this many samples, at most the longest block. Each ends at a guard. */
    juce::AudioBuffer<float> get (int numSamples);

    /** Whether no guard was touched since the last get(). */
    bool isIntact() const noexcept;

private:
    static constexpr int marginLength = 64;
    static constexpr float guard = 0.123456f;

    const int numChannels, stride;
    int length = 0;
    std::vector<float> memory;
    std::vector<float*> channels;

    JUCE_DECLARE_NON_COPYABLE (GuardedBlock)
};

} // namespace validate
