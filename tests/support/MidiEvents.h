// Blocks of MIDI as a host hands them over.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <initializer_list>

using MidiMessages = std::initializer_list<std::initializer_list<juce::uint8>>;

/** A block of messages given as their bytes, one sample apart, as in `{ { 0xb0, 7, 127 } }` for
    controller 7 at 127 on channel 1.
*/
inline juce::MidiBuffer makeMidi (MidiMessages messages)
{
    juce::MidiBuffer midi;

    for (int time = 0; const auto& bytes : messages)
        midi.addEvent (bytes.begin(), static_cast<int> (bytes.size()), time++);

    return midi;
}
