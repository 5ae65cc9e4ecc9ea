// A switch.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/Param.h"

namespace zembra
{

class ParamSet;

/** A parameter from 0 to 1 that keeps whatever value it is given: who reads it as a switch decides
    where "on" begins.
*/
class ParamBool final : public Param
{
public:
    /** @param paramSet  takes ownership of the new parameter; may be null */
    ParamBool (const juce::String& id, const juce::String& name, ParamSet* paramSet,
               double defaultValue, const juce::String& label);

    double normalise (double plain) const override { return plain; }
    double denormalise (double normalised) const override { return normalised; }
    juce::String getTextForValue (float plain, int maximumStringLength) const override;

private:
    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ParamBool)
};

} // namespace zembra
