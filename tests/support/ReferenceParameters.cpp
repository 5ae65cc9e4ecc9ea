// The parameters of the reference engine: ranges, clamp, quarter-step gate, normalised value.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReferenceParameters.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace reference
{

ReferenceParameters::ReferenceParameters()
    : parameters{
          { "dry", -3.0, -48.0, 18.0, 0.1, 0.0 },
          { "wet", -3.0, -48.0, 18.0, 0.1, 0.0 },
          { "bypassDrySignal", 0.0, 0.0, 1.0, 1.0, 0.0 },
          { "bypassWetSignal", 0.0, 0.0, 1.0, 1.0, 0.0 },
          { "dryWetLink", 0.0, 0.0, 1.0, 1.0, 0.0 },
          { "drive", 0.0, 0.0, 100.0, 0.1, 0.0 },
          { "driveModDepth", 0.0, 0.0, 100.0, 0.1, 0.0 },
          { "crush", 0.0, 0.0, 100.0, 0.1, 0.0 },
          { "crushModDepth", 0.0, 0.0, 100.0, 0.1, 0.0 },
          { "downsamp", 0.0, 0.0, 100.0, 0.1, 0.0 },
          { "downsampModDepth", 0.0, 0.0, 100.0, 0.1, 0.0 },
          { "bypassFilter", 0.0, 0.0, 1.0, 1.0, 0.0 },
          { "filterType", 0.0, 0.0, 1.0, 1.0, 0.0 },
          { "lowpassFreq", 8000.0, 20.0, 20000.0, 1.0, 1000.0 },
          { "lowpassRes", 0.0, 0.0, 1.0, 0.01, 0.0 },
          { "hipassFreq", 20.0, 20.0, 20000.0, 1.0, 1000.0 },
          { "hipassRes", 0.0, 0.0, 1.0, 0.01, 0.0 },
          { "filterFreqModDepth", 0.0, 0.0, 100.0, 0.1, 0.0 },
          { "filterResModDepth", 0.0, 0.0, 100.0, 0.1, 0.0 },
          { "lfoSyncOrFree", 0.0, 0.0, 1.0, 1.0, 0.0 },
          { "lfoFreeRate", 0.0, 0.0, 10.0, 0.01, 2.0 },
          { "lfoSyncedPeriod", 19.0, 0.0, 32.0, 1.0, 0.0 },
          { "lfoWaveform", 0.0, 0.0, 3.0, 1.0, 0.0 },
      }
{
}

double Parameter::normalised() const
{
    const auto range = maxValue - minValue;
    const auto proportion = (value - minValue) / range;

    if (centre == 0.0)
        return proportion;

    return std::pow (proportion, std::log (0.5) / std::log ((centre - minValue) / range));
}

void ReferenceParameters::listen (Callback newCallback)
{
    callback = std::move (newCallback);

    for (const auto& parameter : parameters)
        callback (parameter, Source::state);
}

size_t ReferenceParameters::indexOf (const std::string& id) const
{
    for (size_t i = 0; i < parameters.size(); ++i)
        if (parameters[i].id == id)
            return i;

    throw std::out_of_range ("no parameter " + id);
}

void ReferenceParameters::set (const std::string& id, double plainValue, Source source)
{
    auto& parameter = parameters[indexOf (id)];
    const auto clamped = std::clamp (plainValue, parameter.minValue, parameter.maxValue);

    if (! (std::abs (parameter.value - clamped) > parameter.step * 0.25))
        return;

    parameter.value = clamped;
    callback (parameter, source);
}

double ReferenceParameters::get (const std::string& id) const
{
    return parameters[indexOf (id)].value;
}

} // namespace reference
