// A toggle's set-up and the way of its clicks to the parameter.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/Toggle.h"

#include "framework/gui/widgets/FilledPathButton.h"

namespace zembra
{

Toggle::Toggle (PluginProcessor& processorToUse, const juce::String& paramId,
                const juce::Path& path)
    : PluginWidget (processorToUse, paramId),
      button (std::make_unique<FilledPathButton> (paramId + "Button", path))
{
    setUp();
}

Toggle::Toggle (PluginProcessor& processorToUse, const juce::String& paramId,
                std::unique_ptr<juce::Button> buttonToUse)
    : PluginWidget (processorToUse, paramId),
      button (std::move (buttonToUse)),
      inverted (true)
{
    setUp();
}

Toggle::~Toggle()
{
    stopListening();
    button->removeListener (this);
}

void Toggle::setUp()
{
    button->setTitle (getParam().getName());
    button->setClickingTogglesState (clickToggles);
    button->setColour (juce::DrawableButton::backgroundColourId, juce::Colours::transparentBlack);
    button->setColour (juce::DrawableButton::backgroundOnColourId, juce::Colours::transparentBlack);
    button->setWantsKeyboardFocus (true);
    addAndMakeVisible (*button);
    listenTo (getParam());
    button->addMouseListener (this, false);
    button->addListener (this);
}

void Toggle::setInverted (bool shouldBeInverted)
{
    inverted = shouldBeInverted;
    needsUpdate = true;
}

void Toggle::setClickToggles (bool shouldToggle)
{
    clickToggles = shouldToggle;
    button->setClickingTogglesState (shouldToggle);
}

void Toggle::setStateTooltips (const juce::String& whenOff, const juce::String& whenOn)
{
    tooltipOff = whenOff;
    tooltipOn = whenOn;
}

void Toggle::setTooltip (const juce::String& newTooltip)
{
    PluginWidget::setTooltip (newTooltip);
    button->setTooltip (newTooltip);
}

void Toggle::buttonClicked (juce::Button*)
{
    auto& param = getParam();
    const auto setParam = [&] (bool on)
    { param.setValue (on ? 1.0 : 0.0, sourceEditor, &getUndoManager()); };

    getUndoManager().beginNewTransaction();
    beginGesture (param);

    if (clickToggles)
    {
        const auto state = button->getToggleState();
        setParam (state != inverted);

        if (const auto& tip = state ? tooltipOn : tooltipOff; tip.isNotEmpty())
            setTooltip (tip);
    }
    else
    {
        setParam (! inverted);
        setParam (inverted);
    }

    endGesture (param);
}

void Toggle::updateFromParam()
{
    const auto value = getParam().getValue();
    button->setToggleState (inverted ? value <= 0.5 : value >= 0.5, juce::dontSendNotification);
    repaint();
}

void Toggle::resized() { button->setBounds (getLocalBounds()); }

void Toggle::colourChanged()
{
    if (isColourSpecified (juce::ToggleButton::textColourId))
        button->setColour (juce::ToggleButton::textColourId,
                           findColour (juce::ToggleButton::textColourId));
}

} // namespace zembra
