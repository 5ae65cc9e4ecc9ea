// A host that counts what the user does to parameters.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

/** Counts gestures and value changes of all parameters, as a host would see them. */
class EditListener final : public juce::AudioProcessorListener
{
public:
    explicit EditListener (juce::AudioProcessor& processorToUse) : processor (processorToUse)
    {
        processor.addListener (this);
    }

    ~EditListener() override { processor.removeListener (this); }

    void audioProcessorParameterChanged (juce::AudioProcessor*, int index, float) override
    {
        ++numChanges;
        changesOutsideGestures += openGestures.contains (index) ? 0 : 1;
    }

    void audioProcessorChanged (juce::AudioProcessor*, const ChangeDetails&) override {}

    void audioProcessorParameterChangeGestureBegin (juce::AudioProcessor*, int index) override
    {
        ++numBegun;
        openGestures.add (index);
    }

    void audioProcessorParameterChangeGestureEnd (juce::AudioProcessor*, int index) override
    {
        ++numEnded;
        openGestures.removeFirstMatchingValue (index);
    }

    int numBegun = 0, numEnded = 0, numChanges = 0, changesOutsideGestures = 0;
    juce::Array<int> openGestures;

private:
    juce::AudioProcessor& processor;

    JUCE_DECLARE_NON_COPYABLE (EditListener)
};
