// A continuous parameter, with an optional skew of its travel.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/Param.h"

namespace zembra
{

class ParamSet;

/** A parameter over a continuous range. Its normalised value is the linear one raised to the power
    `skew`, which setSkewForCentre() chooses.
*/
class ParamFloat final : public Param
{
public:
    /** @param paramSet  takes ownership of the new parameter; may be null, then the caller owns it */
    ParamFloat (const juce::String& id, const juce::String& name, ParamSet* paramSet,
                double defaultValue, double minValue, double maxValue, double step,
                const juce::String& label);

    double normalise (double plain) const override;
    double denormalise (double normalised) const override;

    /** Two decimal places, cut to the maximum length if that is above 0. */
    juce::String getTextForValue (float plain, int maximumStringLength) const override;

private:
    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ParamFloat)
};

} // namespace zembra
