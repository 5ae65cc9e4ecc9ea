// Reading, sending and comparing of values.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/validate/Values.h"

#include "tools/validate/Format.h"

#include <cmath>
#include <set>

namespace validate
{

Parameters getMovable (const juce::AudioPluginInstance& instance)
{
    Parameters movable;

    for (auto* parameter : instance.getParameters())
        if (parameter->isAutomatable() && parameter != instance.getBypassParameter())
            movable.push_back (parameter);

    return movable;
}

Values readValues (const juce::AudioPluginInstance& instance)
{
    Values values;

    for (const auto* parameter : getMovable (instance))
        values.push_back (parameter->getValue());

    return values;
}

void sendValues (const juce::AudioPluginInstance& instance, const Values& values)
{
    const auto movable = getMovable (instance);

    for (size_t i = 0; i < movable.size(); ++i)
        movable[i]->setValue (values[i]);
}

namespace
{

/** The text at a value. A VST 2 host can only ask for the present one; it is set from far away, since
    plug-ins may take a small move for none.
*/
juce::String getTextAt (juce::AudioProcessorParameter& parameter, float value, Format format)
{
    if (format != Format::vst2)
        return parameter.getText (value, longestText);

    parameter.setValue (value < 0.5f ? 1.0f : 0.0f);
    parameter.setValue (value);
    return parameter.getCurrentValueAsText();
}

int countSteps (juce::AudioProcessorParameter& parameter, Format format)
{
    constexpr int numValues = 128, mostSteps = 40;

    if (parameter.isDiscrete() && parameter.getNumSteps() <= mostSteps)
        return parameter.getNumSteps();

    std::set<juce::String> texts;

    for (int i = 0; i < numValues; ++i)
        texts.insert (getTextAt (parameter, static_cast<float> (i) / (numValues - 1), format));

    return texts.size() > mostSteps ? 0 : static_cast<int> (texts.size());
}

} // namespace

std::vector<int> countSteps (juce::AudioPluginInstance& instance)
{
    std::vector<int> steps;

    for (auto* parameter : getMovable (instance))
        steps.push_back (countSteps (*parameter, getFormat (instance)));

    return steps;
}

float snap (float value, int numSteps)
{
    const auto last = static_cast<float> (numSteps - 1);
    return last > 0.0f ? std::round (value * last) / last : value;
}

Values makeRandomValues (const std::vector<int>& steps, juce::Random& random)
{
    Values values;

    for (const auto numSteps : steps)
        values.push_back (snap (random.nextInt (6) == 0 ? static_cast<float> (random.nextInt (2))
                                                        : random.nextFloat(),
                                numSteps));

    return values;
}

bool isNear (float value, float wanted)
{
    const auto isAtEnd = wanted < 0.25f || wanted > 0.75f;

    // A NaN is near nothing.
    return std::abs (value - wanted) <= (isAtEnd ? 0.08f : hostTolerance);
}

juce::String findDifference (const juce::AudioPluginInstance& instance, const Values& wanted)
{
    const auto movable = getMovable (instance);

    if (movable.size() != wanted.size())
        return juce::String (movable.size()) + " parameters instead of "
               + juce::String (wanted.size());

    for (size_t i = 0; i < movable.size(); ++i)
        if (const auto value = movable[i]->getValue(); ! isNear (value, wanted[i]))
            return movable[i]->getName (longestText).quoted() + ": " + juce::String (value)
                   + " instead of " + juce::String (wanted[i]);

    return {};
}

} // namespace validate
