// Buttons of the flat look.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/ZembraFlatLookAndFeel.h"

#include "framework/gui/lookandfeel/ColourIds.h"
#include "framework/gui/lookandfeel/FittedText.h"
#include "framework/gui/lookandfeel/Palette.h"

namespace zembra
{

ZembraFlatLookAndFeel::ZembraFlatLookAndFeel() { applyFlatPalette (*this); }

juce::Path ZembraFlatLookAndFeel::getButtonShape (const juce::Button& button, float cornerSize)
{
    const auto left = button.isConnectedOnLeft();
    const auto right = button.isConnectedOnRight();
    const auto top = button.isConnectedOnTop();
    const auto bottom = button.isConnectedOnBottom();
    const auto area = button.getLocalBounds().toFloat().reduced (0.5f);

    juce::Path shape;
    shape.addRoundedRectangle (area.getX(), area.getY(), area.getWidth(), area.getHeight(),
                               cornerSize, cornerSize, ! (left || top), ! (right || top),
                               ! (left || bottom), ! (right || bottom));
    return shape;
}

void ZembraFlatLookAndFeel::drawButtonBackground (juce::Graphics& g, juce::Button& button,
                                                  const juce::Colour& background, bool isMouseOver,
                                                  bool isDown)
{
    auto colour = background.withMultipliedAlpha (button.isEnabled() ? 1.0f : 0.5f);

    if (isMouseOver || isDown)
        colour = colour.brighter (isDown ? 0.25f : 0.12f);

    g.setColour (colour);
    g.fillPath (getButtonShape (button, 3.0f));
}

juce::Font ZembraFlatLookAndFeel::getTextButtonFont (juce::TextButton& button, int buttonHeight)
{
    const juce::Font tallest (juce::jmax (0.1f, static_cast<float> (buttonHeight)));
    const auto fitting =
        getFontThatFits (tallest, button.getButtonText(), static_cast<float> (button.getWidth()),
                         tallest.getHeight());
    return tallest.withHeight (juce::jmax (8.0f, 0.8f * fitting.getHeight()));
}

void ZembraFlatLookAndFeel::drawButtonText (juce::Graphics& g, juce::TextButton& button,
                                            bool isMouseOver, bool isDown)
{
    auto colour =
        getStateColour (button, button.getToggleState() ? juce::TextButton::textColourOnId
                                                        : juce::TextButton::textColourOffId);

    if (button.isEnabled() && (isMouseOver || isDown))
        colour = colour.brighter (isDown ? 0.7f : 0.4f);

    g.setColour (colour);
    drawTextThatFits (g, button.getButtonText(), button.getLocalBounds().toFloat(),
                      getTextButtonFont (button, button.getHeight()), juce::Justification::centred);
}

void ZembraFlatLookAndFeel::drawTickBox (juce::Graphics& g, juce::Component& component, float x,
                                         float y, float w, float h, bool ticked, bool,
                                         bool isMouseOver, bool)
{
    const auto box = juce::Rectangle<float> (x, y, w, h).reduced (0.08f * w);
    const auto outline = getStateColour (component, toggleBoxColourId);
    g.setColour (isMouseOver ? outline.brighter (0.4f) : outline);
    g.drawRoundedRectangle (box, 0.15f * w, juce::jmax (1.0f, 0.0625f * w));

    if (ticked)
    {
        g.setColour (getStateColour (component, juce::ToggleButton::tickColourId));
        g.fillRoundedRectangle (box.reduced (0.2f * w), 0.08f * w);
    }
}

} // namespace zembra
