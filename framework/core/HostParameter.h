// A parameter as the host sees it.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/Param.h"

#include <juce_audio_processors/juce_audio_processors.h>

namespace zembra
{

class PluginProcessor;

/** Stands for one parameter of the set in JUCE's list, which the format wrappers show to the host.
    All questions go to the processor by index; in addition it reads texts typed into a host.
*/
class HostParameter final : public juce::AudioProcessorParameterWithID
{
public:
    HostParameter (PluginProcessor& processor, const Param& param, int index);

    float getValue() const override;
    void setValue (float newValue) override;
    float getDefaultValue() const override;
    int getNumSteps() const override;
    bool isDiscrete() const override;
    bool isBoolean() const override;
    bool isAutomatable() const override;
    bool isMetaParameter() const override;
    juce::String getName (int maximumStringLength) const override;
    juce::String getText (float normalised, int maximumStringLength) const override;

    /** The normalised value that a text stands for; the present one if the text makes no sense. */
    float getValueForText (const juce::String& text) const override;

private:
    PluginProcessor& processor;
    const Param& param;
    const int index;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (HostParameter)
};

} // namespace zembra
