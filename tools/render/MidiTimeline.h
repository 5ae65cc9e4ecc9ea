// The events of a MIDI file, by frame.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <string>

namespace render
{

/** The controllers and program changes of all tracks of a standard MIDI file, at the times that the
    file's own tempo map gives them. [the thread that renders]
*/
class MidiTimeline final
{
public:
    /** Has no events. */
    MidiTimeline() = default;

    /** @throws Failure  if the file can't be read or is no MIDI file */
    MidiTimeline (const std::string& path, double sampleRate);

    /** Takes the events of the next frames; their times count from the first of these. */
    juce::MidiBuffer takeNext (int numFrames);

private:
    juce::MidiMessageSequence events; ///< times in frames
    int nextEvent = 0;
    juce::int64 position = 0;
};

} // namespace render
