// What a file is rendered with: a plug-in, built in or hosted.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

#include <memory>
#include <string>

namespace render
{

/** Drives a processor as a host does, the same way whatever stands behind it: that is why all
    engines give the same samples. [message thread]
*/
class Engine
{
public:
    virtual ~Engine() = default;

    /** Prepares for blocks of at most `blockSize` frames of one or two channels. The play head must
        outlive the engine's use.
    */
    void prepare (double sampleRate, int blockSize, int numChannels, juce::AudioPlayHead& playHead);

    /** Sets a parameter by its name and lets the processor take it over before anything else.
        @throws Failure  if there is no such parameter
    */
    void setParameter (const juce::String& name, float normalised);

    /** Processes a block in place; the buffer of events is empty afterwards. */
    void process (juce::AudioBuffer<float>& block, juce::MidiBuffer& midi);

protected:
    Engine() = default;

    virtual juce::AudioProcessor& getProcessor() = 0;

    /** Does what a host's message loop would do between two blocks. */
    virtual void blockDone() {}

private:
    void chooseLayout (int numChannels);
    void flushParameters();

    juce::AudioBuffer<float> wideBlock; ///< both channels of a processor that can't do mono
    juce::MidiBuffer noMidi;
    int numProcessorChannels = 2;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (Engine)
};

} // namespace render
