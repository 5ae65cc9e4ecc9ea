// Drawing of the value bubble.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/TooltipBubbleLookAndFeel.h"

namespace zembra
{

void TooltipBubbleLookAndFeel::drawBubble (juce::Graphics& g, juce::BubbleComponent& bubble,
                                           const juce::Point<float>& tip,
                                           const juce::Rectangle<float>& body)
{
    constexpr float tipWidth = 8.0f;
    juce::Path shape;
    shape.addBubble (body.reduced (0.5f), bubble.getLocalBounds().toFloat(), tip, 2.0f, tipWidth);
    g.setColour (bubble.findColour (juce::BubbleComponent::backgroundColourId));
    g.fillPath (shape);
    g.setColour (bubble.findColour (juce::BubbleComponent::outlineColourId));
    g.strokePath (shape, juce::PathStrokeType (getHairline()));
}

} // namespace zembra
