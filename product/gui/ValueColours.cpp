// Finds the colours of a knob or fader.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/gui/ValueColours.h"

#include "framework/gui/lookandfeel/ColourIds.h"
#include "product/gui/ControlledKnob.h"

ValueColours::ValueColours (const juce::Slider& slider)
{
    const auto alpha = slider.isEnabled() ? 1.0f : 0.4f;
    const auto find = [&slider, alpha] (int id)
    { return slider.findColour (id).withMultipliedAlpha (alpha); };

    if (const auto* knob = slider.findParentComponentOfClass<ControlledKnob>())
        modDepth = knob->getModDepth();

    const auto* const widget = slider.findParentComponentOfClass<zembra::PluginWidget>();
    const auto isFrozen = widget != nullptr && widget->getParam().isFrozen();
    track = find (zembra::knobTrackColourId);
    value = find (isFrozen ? zembra::frozenColourId : zembra::knobValueColourId);
    modulated = find (zembra::knobModColourId);
    pointer = isFrozen || modDepth <= 0.0f ? value : modulated;
    cap = find (zembra::knobCapColourId);
}
