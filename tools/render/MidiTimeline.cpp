// Reading and cutting of a MIDI file.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/MidiTimeline.h"

#include "tools/render/Failure.h"
#include "tools/render/SmallFile.h"

#include <cmath>

namespace render
{

namespace
{

bool isWanted (const juce::MidiMessage& message)
{
    return message.isController() || message.isProgramChange();
}

} // namespace

MidiTimeline::MidiTimeline (const std::string& path, double sampleRate)
{
    const auto refuse = [&] { throw Failure (inQuotes (path) + " is no MIDI file"); };
    juce::MemoryInputStream stream (readSmallFile (path), true);
    juce::MidiFile file;

    // Without a time unit no event has a time.
    if (! file.readFrom (stream, false) || file.getTimeFormat() == 0)
        refuse();

    file.convertTimestampTicksToSeconds();

    for (int track = 0; track < file.getNumTracks(); ++track)
        for (const auto* event : *file.getTrack (track))
            if (isWanted (event->message))
            {
                const auto frame = std::round (event->message.getTimeStamp() * sampleRate);

                if (! std::isfinite (frame) || frame < 0.0)
                    refuse();

                events.addEvent (event->message.withTimeStamp (frame));
            }
}

juce::MidiBuffer MidiTimeline::takeNext (int numFrames)
{
    juce::MidiBuffer taken;
    const auto start = static_cast<double> (position);
    position += numFrames;

    for (; nextEvent < events.getNumEvents(); ++nextEvent)
    {
        const auto& message = events.getEventPointer (nextEvent)->message;

        if (message.getTimeStamp() >= static_cast<double> (position))
            break;

        taken.addEvent (message, static_cast<int> (message.getTimeStamp() - start));
    }

    return taken;
}

} // namespace render
