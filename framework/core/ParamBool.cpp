// The text of a switch.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/ParamBool.h"

#include "framework/core/ParamSet.h"

namespace zembra
{

ParamBool::ParamBool (const juce::String& idToUse, const juce::String& nameToUse,
                      ParamSet* paramSet, double defaultPlain, const juce::String& labelToUse)
    : Param (idToUse, nameToUse, typeBool, defaultPlain, 0.0, 1.0, 1.0, labelToUse)
{
    if (paramSet != nullptr)
        paramSet->addParam (this);
}

juce::String ParamBool::getTextForValue (float plain, int) const
{
    return juce::String (juce::roundToInt (plain));
}

} // namespace zembra
