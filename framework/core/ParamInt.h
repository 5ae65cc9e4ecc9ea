// A parameter of whole numbers: a choice.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/Param.h"

namespace zembra
{

class ParamSet;

/** A parameter whose normalised value maps to whole numbers. Its step is always 1. */
class ParamInt final : public Param
{
public:
    /** @param paramSet     takes ownership of the new parameter; may be null
        @param stepIgnored  accepted so that all numeric parameters are made alike, and dropped
    */
    ParamInt (const juce::String& id, const juce::String& name, ParamSet* paramSet,
              double defaultValue, double minValue, double maxValue, double stepIgnored,
              const juce::String& label);

    double normalise (double plain) const override;

    /** Rounded to the nearest whole number, ties to even. */
    double denormalise (double normalised) const override;

    juce::String getTextForValue (float plain, int maximumStringLength) const override;

private:
    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ParamInt)
};

} // namespace zembra
