// The mapping and the text of a choice.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/ParamInt.h"

#include "framework/core/ParamSet.h"

#include <cmath>

namespace zembra
{

ParamInt::ParamInt (const juce::String& idToUse, const juce::String& nameToUse, ParamSet* paramSet,
                    double defaultPlain, double minPlain, double maxPlain, double /*stepIgnored*/,
                    const juce::String& labelToUse)
    : Param (idToUse, nameToUse, typeInt, defaultPlain, minPlain, maxPlain, 1.0, labelToUse)
{
    if (paramSet != nullptr)
        paramSet->addParam (this);
}

double ParamInt::normalise (double plain) const { return (plain - getMinValue()) / getRange(); }

double ParamInt::denormalise (double normalised) const
{
    return std::nearbyint (normalised * getRange() + getMinValue());
}

juce::String ParamInt::getTextForValue (float plain, int) const
{
    return juce::String (juce::roundToInt (plain));
}

} // namespace zembra
