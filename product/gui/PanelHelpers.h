// What the product's panels share: rounding, labels, colours for whole branches, knobs.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/PluginEditor.h"
#include "framework/gui/widgets/Toggle.h"
#include "product/VorloProcessor.h"
#include "product/gui/ControlledKnob.h"

/** The panels' timers run at this period, in milliseconds. */
inline constexpr int panelTimerPeriod = 40;

/** A part of a length in pixels, rounded; the product is taken in single precision. */
inline int partOf (int length, float part)
{
    return juce::roundToInt (static_cast<float> (length) * part);
}

/** Makes a centred label that lets the mouse through, so that it can lie on a knob's lower edge. */
void addLabel (juce::Component& parent, std::unique_ptr<juce::Label>& member,
               const juce::String& text);

/** Sets a colour on a component and on everything inside it. */
void setColourRecursive (juce::Component& component, int colourId, juce::Colour colour);

/** The parameter with an id that is known to exist. */
zembra::Param& findParam (VorloProcessor& processor, const char* id);

/** Makes a knob that shows the modulation of its parameter. */
ControlledKnob* addControlledKnob (VorloProcessor& processor, zembra::PluginEditor& editor,
                                   juce::Component& parent, const char* paramId,
                                   const juce::String& tooltip);

/** Makes a knob or fader; its title, for screen readers, is the parameter's name. */
template <typename Widget = zembra::Fader>
Widget* addFader (VorloProcessor& processor, zembra::PluginEditor& editor, juce::Component& parent,
                  const char* paramId, juce::Slider::SliderStyle style,
                  juce::Slider::TextEntryBoxPosition textBox, const juce::String& tooltip)
{
    auto* const fader =
        editor.addWidget (std::make_unique<Widget> (processor, paramId, style), &parent);
    fader->setupControl (textBox);
    fader->setTooltip (juce::translate (tooltip));
    fader->getSlider().setTitle (fader->getParam().getName());
    fader->getSlider().setDescription (juce::translate (tooltip));
    return fader;
}

/** Makes a bypass switch: lit while the parameter is off. */
zembra::Toggle* addBypassToggle (VorloProcessor& processor, zembra::PluginEditor& editor,
                                 juce::Component& parent, const char* paramId,
                                 const juce::String& text);
