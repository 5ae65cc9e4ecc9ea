// The host bridge of the frame: the host's questions and automation, by parameter index.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/PluginProcessor.h"

namespace zembra
{

int PluginProcessor::getNumParameters() { return paramSet.getNumParams(); }

juce::String PluginProcessor::getParameterID (int index) { return getParamId (index); }

const juce::String PluginProcessor::getParameterName (int index)
{
    const auto* param = paramSet.getParam (index);
    return param != nullptr ? param->getName() : juce::String();
}

juce::String PluginProcessor::getParameterName (int index, int)
{
    // Whole, whatever the host's limit: half a name helps nobody.
    return getParameterName (index);
}

juce::String PluginProcessor::getParameterLabel (int index) const
{
    const auto* param = paramSet.getParam (index);
    return param != nullptr ? param->getLabel() : juce::String();
}

float PluginProcessor::getParameter (int index)
{
    const auto* param = paramSet.getParam (index);
    return param != nullptr ? static_cast<float> (param->normalise (param->getValue())) : 0.0f;
}

float PluginProcessor::getParameterDefaultValue (int index)
{
    const auto* param = paramSet.getParam (index);
    return param != nullptr ? static_cast<float> (param->normalise (param->getDefaultValue()))
                            : 0.0f;
}

const juce::String PluginProcessor::getParameterText (int index)
{
    constexpr int unlimited = 1024;
    return getParameterText (index, unlimited);
}

juce::String PluginProcessor::getParameterText (int index, int maximumStringLength)
{
    const auto* param = paramSet.getParam (index);
    return param != nullptr
               ? param->getText (static_cast<float> (param->getValue()), maximumStringLength)
               : juce::String();
}

int PluginProcessor::getParameterNumSteps (int index)
{
    const auto* param = paramSet.getParam (index);
    return param != nullptr ? param->getNumSteps() : 0;
}

bool PluginProcessor::isParameterDiscrete (int index) const
{
    const auto* param = paramSet.getParam (index);
    return param != nullptr && param->getType() != Param::typeFloat;
}

bool PluginProcessor::isParameterAutomatable (int index) const
{
    const auto* param = paramSet.getParam (index);
    return param != nullptr && param->isAutomatable();
}

bool PluginProcessor::isMetaParameter (int index) const
{
    const auto* param = paramSet.getParam (index);
    return param != nullptr && param->isMeta();
}

void PluginProcessor::setParameter (int index, float newValue)
{
    // A call of our own, on the way of telling the host: the value stands already.
    if (hostSetGuard.exchange (0, std::memory_order_relaxed) != 0)
        return;

    auto* param = paramSet.getParam (index);

    if (param == nullptr || ! param->isAutomatable())
        return;

    const RealtimeMarks::Scope mark (automationCalls);
    param->setValue (param->denormalise (static_cast<double> (newValue)), sourceHost, &undoManager);
    hostSetGuard.store (0, std::memory_order_relaxed);
}

void PluginProcessor::paramChanged (Param* param, double, double normalisedValue, int source)
{
    if (source == sourceHost)
        return;

    const auto index = paramSet.indexOf (param);

    if (index < 0)
        return;

    // A host may do anything when it is told, and JUCE takes locks on the way: not on the audio thread.
    if (midiCalls.isMarked())
        realtimeMail.postParam (index);
    else
        tellHost (index, normalisedValue, source);
}

void PluginProcessor::tellHost (int index, double normalised, int source)
{
    const auto value = static_cast<float> (normalised);
    hostSetGuard.store (source, std::memory_order_relaxed);
    setParameter (index, value);
    sendParamChangeMessageToListeners (index, value);
}

} // namespace zembra
