// The bytes of a plug-in's state, out of the wrapping in which each format hands them over.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

namespace validate
{

/** What the instance hands to its host. [message thread] */
juce::MemoryBlock getState (juce::AudioPluginInstance& instance);
void setState (juce::AudioPluginInstance& instance, const juce::MemoryBlock& state);

/** The plug-in's own bytes inside such a state. Where hosts wrap them in a text of theirs (VST3: XML,
    LV2: Turtle), that text is of no interest: it is read by the host, not by the plug-in. Empty if they
    aren't found.
*/
juce::MemoryBlock unwrapState (const juce::AudioPluginInstance& instance,
                               const juce::MemoryBlock& state);

/** The state with other bytes in the same wrapping. */
juce::MemoryBlock wrapState (const juce::AudioPluginInstance& instance,
                             const juce::MemoryBlock& state, const juce::MemoryBlock& bytes);

} // namespace validate
