// Random MIDI for a block, and a state in which every parameter answers to a controller.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

namespace soak
{

/** The controller of the first parameter in makeStateWithMidi(); the others follow it. */
inline constexpr int firstController = 10;

/** Replaces what is in the buffer by a few controllers and program changes. Allocates nothing if the
    buffer has room for them. [any thread]
*/
void fillWithMidi (juce::MidiBuffer& midi, juce::Random& random, int numSamples);

/** The present state as a chunk, but with MIDI and program changes on, and with a controller for
    each parameter, counted up from `firstController` in the order of their ids in the chunk.
*/
juce::MemoryBlock makeStateWithMidi (juce::AudioProcessor& processor);

} // namespace soak
