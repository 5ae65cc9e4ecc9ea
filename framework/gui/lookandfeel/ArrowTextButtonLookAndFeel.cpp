// Drawing of text buttons with an arrow.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/ArrowTextButtonLookAndFeel.h"

#include "framework/gui/lookandfeel/FittedText.h"

namespace zembra
{

void ArrowTextButtonLookAndFeel::drawButtonText (juce::Graphics& g, juce::TextButton& button,
                                                 bool isMouseOver, bool isDown)
{
    auto colour =
        getStateColour (button, button.getToggleState() ? juce::TextButton::textColourOnId
                                                        : juce::TextButton::textColourOffId);

    if (button.isEnabled() && (isMouseOver || isDown))
        colour = colour.brighter (isDown ? 0.7f : 0.4f);

    auto area = button.getLocalBounds().toFloat();
    const auto side = 0.3f * area.getHeight();
    const auto arrow =
        area.removeFromRight (area.getHeight()).withSizeKeepingCentre (side, 0.6f * side);
    juce::Path triangle;
    triangle.addTriangle (arrow.getTopLeft(), arrow.getTopRight(),
                          { arrow.getCentreX(), arrow.getBottom() });
    g.setColour (colour);
    g.fillPath (triangle);
    drawTextThatFits (g, button.getButtonText(), area.withTrimmedLeft (4.0f),
                      juce::Font (0.6f * area.getHeight()), juce::Justification::centredLeft);
}

} // namespace zembra
