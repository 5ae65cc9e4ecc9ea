// A knob whose value a modulation pulls down, and that shows how far.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/widgets/Fader.h"

/** The look and feel draws the depth as the coloured tip of the value's arc. */
class ControlledKnob final : public zembra::Fader
{
public:
    using Fader::Fader;

    /** The depth of modulation, 0 to 1. Repaints if it differs. */
    void setModDepth (float newDepth);
    float getModDepth() const noexcept { return modDepth; }

private:
    float modDepth = 0.5f;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ControlledKnob)
};
