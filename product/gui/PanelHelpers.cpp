// The helpers that build the product's panels.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/gui/PanelHelpers.h"

#include "framework/gui/lookandfeel/ColourIds.h"

void addLabel (juce::Component& parent, std::unique_ptr<juce::Label>& member,
               const juce::String& text)
{
    member = std::make_unique<juce::Label> ("Label", text);
    member->setJustificationType (juce::Justification::centred);
    member->setInterceptsMouseClicks (false, false);
    member->setAccessible (false); // the control beside it has a title of its own
    parent.addAndMakeVisible (*member);
}

void setColourRecursive (juce::Component& component, int colourId, juce::Colour colour)
{
    component.setColour (colourId, colour);

    for (auto* child : component.getChildren())
        setColourRecursive (*child, colourId, colour);
}

zembra::Param& findParam (VorloProcessor& processor, const char* id)
{
    auto* const param = processor.getParamSet().getParam (id);
    jassert (param != nullptr);
    return *param;
}

ControlledKnob* addControlledKnob (VorloProcessor& processor, zembra::PluginEditor& editor,
                                   juce::Component& parent, const char* paramId,
                                   const juce::String& tooltip)
{
    auto* const knob = addFader<ControlledKnob> (processor, editor, parent, paramId,
                                                 juce::Slider::RotaryHorizontalVerticalDrag,
                                                 juce::Slider::TextBoxRight, tooltip);
    setColourRecursive (*knob, zembra::knobModColourId, juce::Colour (0xffbd5b06));
    knob->setModDepth (0.5f);
    return knob;
}

zembra::Toggle* addBypassToggle (VorloProcessor& processor, zembra::PluginEditor& editor,
                                 juce::Component& parent, const char* paramId,
                                 const juce::String& text)
{
    auto button = std::make_unique<juce::ToggleButton> (text);
    auto* const toggle = editor.addWidget (
        std::make_unique<zembra::Toggle> (processor, paramId, std::move (button)), &parent);
    toggle->setShowsValueBubble (false);
    return toggle;
}
