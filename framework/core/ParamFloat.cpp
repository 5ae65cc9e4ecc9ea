// The mapping and the text of a continuous parameter.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/ParamFloat.h"

#include "framework/core/ParamSet.h"

#include <cmath>

namespace zembra
{

ParamFloat::ParamFloat (const juce::String& idToUse, const juce::String& nameToUse,
                        ParamSet* paramSet, double defaultPlain, double minPlain, double maxPlain,
                        double stepToUse, const juce::String& labelToUse)
    : Param (idToUse, nameToUse, typeFloat, defaultPlain, minPlain, maxPlain, stepToUse, labelToUse)
{
    if (paramSet != nullptr)
        paramSet->addParam (this);
}

double ParamFloat::normalise (double plain) const
{
    const auto linear = (plain - getMinValue()) / getRange();
    return getSkew() == 1.0 ? linear : std::pow (linear, getSkew());
}

double ParamFloat::denormalise (double normalised) const
{
    if (getSkew() != 1.0 && normalised > 0)
        normalised = std::exp (std::log (normalised) / getSkew());

    return normalised * getRange() + getMinValue();
}

juce::String ParamFloat::getTextForValue (float plain, int maximumStringLength) const
{
    const juce::String text (static_cast<double> (plain), 2);
    return maximumStringLength >= 1 ? text.substring (0, maximumStringLength) : text;
}

} // namespace zembra
