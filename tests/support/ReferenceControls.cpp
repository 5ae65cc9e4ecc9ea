// What the parameters of the reference engine mean to it: cached values, link, sync and free.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReferenceControls.h"

#include "ReferenceLfo.h"

#include <algorithm>
#include <cmath>

namespace reference
{

static float gainFor (double decibels)
{
    return decibels <= -48.0 ? 0.0f : static_cast<float> (std::pow (10.0, decibels * 0.05));
}

ReferenceControls::ReferenceControls()
{
    parameters.listen ([this] (const Parameter& parameter, Source source)
                       { parameterChanged (parameter, source); });
}

MixGains ReferenceControls::mixGains() const
{
    return { dryBypassed ? 0.0f : dryGain, wetBypassed ? 0.0f : wetGain };
}

bool ReferenceControls::modulates() const
{
    return driveDepth != 0.0f || crushDepth != 0.0f || downsampDepth != 0.0f
           || filterFreqDepth != 0.0f || filterResDepth != 0.0f;
}

void ReferenceControls::parameterChanged (const Parameter& parameter, Source source)
{
    if (mixParameterChanged (parameter, source) || filterParameterChanged (parameter)
        || lfoParameterChanged (parameter, source))
        return;

    const auto normalised = static_cast<float> (parameter.normalised());

    if (parameter.id == "drive")
        driveAmount = normalised;
    else if (parameter.id == "driveModDepth")
        driveDepth = normalised;
    else if (parameter.id == "crush")
        crushAmount = normalised;
    else if (parameter.id == "crushModDepth")
        crushDepth = normalised;
    else if (parameter.id == "downsamp")
        downsampAmount = normalised;
    else if (parameter.id == "downsampModDepth")
        downsampDepth = normalised;
}

bool ReferenceControls::mixParameterChanged (const Parameter& parameter, Source source)
{
    const bool movesPartner = linked && source != Source::linked;
    const auto value = parameter.value;

    if (parameter.id == "dry")
    {
        dryGain = gainFor (value);

        if (movesPartner)
            parameters.set ("wet", value - linkOffset, Source::linked);
    }
    else if (parameter.id == "wet")
    {
        wetGain = gainFor (value);

        if (movesPartner)
            parameters.set ("dry", value + linkOffset, Source::linked);
    }
    else if (parameter.id == "bypassDrySignal")
    {
        dryBypassed = parameter.normalised() > 0.5;
    }
    else if (parameter.id == "bypassWetSignal")
    {
        wetBypassed = parameter.normalised() > 0.5;
    }
    else if (parameter.id == "dryWetLink")
    {
        linked = parameter.normalised() > 0.5;

        if (linked)
            linkOffset = parameters.get ("dry") - parameters.get ("wet");
    }
    else
    {
        return false;
    }

    return true;
}

bool ReferenceControls::filterParameterChanged (const Parameter& parameter)
{
    const auto normalised = static_cast<float> (parameter.normalised());

    if (parameter.id == "bypassFilter")
        filterEnabled = parameter.normalised() <= 0.5;
    else if (parameter.id == "filterType")
        filterType = static_cast<int> (parameter.value);
    else if (parameter.id == "lowpassFreq")
        filters[0].freq = static_cast<float> (parameter.value);
    else if (parameter.id == "lowpassRes")
        filters[0].res = normalised;
    else if (parameter.id == "hipassFreq")
        filters[1].freq = static_cast<float> (parameter.value);
    else if (parameter.id == "hipassRes")
        filters[1].res = normalised;
    else if (parameter.id == "filterFreqModDepth")
        filterFreqDepth = normalised;
    else if (parameter.id == "filterResModDepth")
        filterResDepth = normalised;
    else
        return false;

    return true;
}

bool ReferenceControls::lfoParameterChanged (const Parameter& parameter, Source source)
{
    if (parameter.id == "lfoSyncOrFree")
    {
        setSynced (parameter.normalised() >= 0.5, source);
    }
    else if (parameter.id == "lfoFreeRate")
    {
        if (! clock.synced)
            clock.lfoRate = static_cast<float> (parameter.value);
    }
    else if (parameter.id == "lfoSyncedPeriod")
    {
        clock.setDivision (divisionAt (static_cast<int> (parameter.value)));
    }
    else if (parameter.id == "lfoWaveform")
    {
        const auto choice = std::clamp (static_cast<int> (parameter.value), 0, 3);
        lfoWaveform = choice == 3 ? randomWaveform : choice;
    }
    else
    {
        return false;
    }

    return true;
}

void ReferenceControls::setSynced (bool shouldBeSynced, Source source)
{
    lfoSynced = shouldBeSynced;
    clock.setSynced (shouldBeSynced);

    if (shouldBeSynced)
        parameters.set ("lfoSyncedPeriod", indexOfDivision (clock.division), source);

    parameters.set ("lfoFreeRate", static_cast<double> (clock.lfoRate), source);
}

} // namespace reference
