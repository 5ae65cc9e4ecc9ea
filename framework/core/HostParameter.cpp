// The host's questions about one parameter.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/HostParameter.h"

#include "framework/core/PluginProcessor.h"

namespace zembra
{

namespace
{

/** The first version of the product in which a parameter existed, as AU wants to know it. */
constexpr int firstVersion = 1;

} // namespace

HostParameter::HostParameter (PluginProcessor& processorToUse, const Param& paramToUse,
                              int indexToUse)
    : AudioProcessorParameterWithID (
        { paramToUse.getId(), firstVersion }, paramToUse.getName(),
        juce::AudioProcessorParameterWithIDAttributes().withLabel (paramToUse.getLabel())),
      processor (processorToUse),
      param (paramToUse),
      index (indexToUse)
{
}

float HostParameter::getValue() const { return processor.getParameter (index); }
void HostParameter::setValue (float newValue) { processor.setParameter (index, newValue); }
float HostParameter::getDefaultValue() const { return processor.getParameterDefaultValue (index); }
int HostParameter::getNumSteps() const { return processor.getParameterNumSteps (index); }
bool HostParameter::isDiscrete() const { return processor.isParameterDiscrete (index); }
bool HostParameter::isBoolean() const { return param.getType() == Param::typeBool; }
bool HostParameter::isAutomatable() const { return processor.isParameterAutomatable (index); }
bool HostParameter::isMetaParameter() const { return processor.isMetaParameter (index); }

juce::String HostParameter::getName (int maximumStringLength) const
{
    return processor.getParameterName (index, maximumStringLength);
}

juce::String HostParameter::getText (float normalised, int maximumStringLength) const
{
    const auto plain = param.denormalise (static_cast<double> (normalised));
    return param.getText (static_cast<float> (plain), maximumStringLength);
}

float HostParameter::getValueForText (const juce::String& text) const
{
    const auto plain = param.getValueForText (text);

    if (! plain)
        return getValue();

    const auto inRange = juce::jlimit (param.getMinValue(), param.getMaxValue(), *plain);
    return static_cast<float> (param.normalise (inRange));
}

} // namespace zembra
