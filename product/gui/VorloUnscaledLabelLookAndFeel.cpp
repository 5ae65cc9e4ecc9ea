// Drawing at fixed sizes, in pixels.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/gui/VorloUnscaledLabelLookAndFeel.h"

#include "framework/gui/lookandfeel/FittedText.h"

namespace
{
constexpr float textHeight = 13.0f;
constexpr float boxSize = 14.0f;
constexpr float cornerSize = 3.0f;
} // namespace

void VorloUnscaledLabelLookAndFeel::drawButtonBackground (juce::Graphics& g, juce::Button& button,
                                                          const juce::Colour& background,
                                                          bool isMouseOver, bool isDown)
{
    auto colour = background.withMultipliedAlpha (button.isEnabled() ? 1.0f : 0.5f);

    if (isMouseOver || isDown)
        colour = colour.brighter (isDown ? 0.2f : 0.1f);

    g.setColour (colour);
    g.fillPath (getButtonShape (button, cornerSize));
}

juce::Font VorloUnscaledLabelLookAndFeel::getTextButtonFont (juce::TextButton&, int)
{
    return juce::Font (textHeight);
}

void VorloUnscaledLabelLookAndFeel::drawToggleButton (juce::Graphics& g, juce::ToggleButton& button,
                                                      bool isMouseOver, bool isDown)
{
    drawTickBoxAndText (g, button, textHeight, boxSize, isMouseOver, isDown);
}

juce::Font VorloUnscaledLabelLookAndFeel::getLabelFont (juce::Label& label)
{
    return label.getFont();
}

void VorloUnscaledLabelLookAndFeel::drawLabel (juce::Graphics& g, juce::Label& label)
{
    g.fillAll (label.findColour (juce::Label::backgroundColourId));

    if (label.isBeingEdited())
        return;

    g.setColour (getStateColour (label, juce::Label::textColourId));
    g.setFont (getLabelFont (label));
    g.drawFittedText (label.getText(), label.getLocalBounds(), label.getJustificationType(), 10);
}
