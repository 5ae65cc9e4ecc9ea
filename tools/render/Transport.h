// A host's play head that plays from the start of the song at one tempo.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

namespace render
{

/** Plays in 4/4 from 0. The tempo is rounded to single precision, which is what LV2 carries, so that
    all plug-in formats hear the same one. [the thread that renders]
*/
class Transport final : public juce::AudioPlayHead
{
public:
    Transport (double bpm, double sampleRateToUse);

    juce::Optional<PositionInfo> getPosition() const override;

    /** Moves on by a number of frames. */
    void advance (int numFrames) { timeInSamples += numFrames; }

private:
    const double tempo;
    const double sampleRate;
    juce::int64 timeInSamples = 0;
};

} // namespace render
