// The look for a tooltip under the mouse.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/TooltipDisplayComponent.h"

#include "framework/gui/HostWindow.h"
#include "framework/gui/lookandfeel/ColourIds.h"

namespace zembra
{

namespace
{

constexpr int periodMs = 200;
constexpr int sideMargin = 6;

juce::String findTipOf (juce::Component* component)
{
    if (component == nullptr || ! isHostInForeground()
        || component->isCurrentlyBlockedByAnotherModalComponent())
        return {};

    auto* const client = dynamic_cast<juce::TooltipClient*> (component);
    return client != nullptr ? client->getTooltip() : juce::String();
}

} // namespace

TooltipDisplayComponent::TooltipDisplayComponent (const juce::String& defaultTextToUse)
    : defaultText (defaultTextToUse)
{
    label.setText (defaultText, juce::dontSendNotification);
    label.setMinimumHorizontalScale (1.0f);
    addAndMakeVisible (label);
    colourChanged();
    startTimer (periodMs);
}

void TooltipDisplayComponent::colourChanged()
{
    setOpaque (findColour (tooltipBackgroundColourId).isOpaque());
    label.setColour (juce::Label::textColourId, findColour (tooltipTextColourId));
}

void TooltipDisplayComponent::paint (juce::Graphics& g)
{
    g.fillAll (findColour (tooltipBackgroundColourId));
}

void TooltipDisplayComponent::resized()
{
    const auto margin = juce::roundToInt (0.1f * static_cast<float> (getHeight()));
    label.setBounds (getLocalBounds().reduced (sideMargin, margin));
}

void TooltipDisplayComponent::timerCallback()
{
    const auto mouse = juce::Desktop::getInstance().getMainMouseSource();
    auto* const component =
        mouse.isMouse() || mouse.isDragging() ? mouse.getComponentUnderMouse() : nullptr;
    const auto tip = findTipOf (component);

    if (component == currentComponent && tip == currentTip)
        return;

    currentComponent = component;
    currentTip = tip;
    label.setText (tip.isNotEmpty() ? tip : defaultText, juce::dontSendNotification);
}

} // namespace zembra
