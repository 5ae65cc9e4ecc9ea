// Buttons and switches of the product's look.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/ColourIds.h"
#include "framework/gui/lookandfeel/FittedText.h"
#include "product/gui/VorloLookAndFeel.h"

void VorloLookAndFeel::drawButtonShape (juce::Graphics& g, const juce::Path& shape,
                                        juce::Colour colour, float height)
{
    const auto alpha = 0.4f * colour.getFloatAlpha();
    const auto brightness = colour.getBrightness();
    g.setColour (colour);
    g.fillPath (shape);

    const juce::PathStrokeType line (1.0f);
    g.setColour (juce::Colours::white.withAlpha (alpha * brightness * brightness));
    g.strokePath (
        shape, line,
        juce::AffineTransform::translation (0.0f, 1.0f).scaled (1.0f, (height - 1.6f) / height));
    g.setColour (juce::Colours::black.withAlpha (alpha));
    g.strokePath (shape, line);
}

void VorloLookAndFeel::drawButtonBackground (juce::Graphics& g, juce::Button& button,
                                             const juce::Colour& background, bool isMouseOver,
                                             bool isDown)
{
    auto colour = background.withMultipliedAlpha (button.isEnabled() ? 1.0f : 0.5f);

    if (isMouseOver && ! button.getToggleState() && colour.getAlpha() != 0)
        colour = colour.brighter (isDown ? 0.2f : 0.1f);

    if (colour.getAlpha() != 0)
        drawButtonShape (g, getButtonShape (button, 4.0f), colour,
                         static_cast<float> (button.getHeight()));
}

void VorloLookAndFeel::drawToggleButton (juce::Graphics& g, juce::ToggleButton& button,
                                         bool isMouseOver, bool isDown)
{
    const auto fontHeight =
        static_cast<float> (juce::roundToInt (0.5f * static_cast<float> (button.getHeight())));
    const auto& name = button.getName();
    const auto isMixSwitch = name == "DRY" || name == "WET";
    drawTickBoxAndText (g, button, fontHeight, (isMixSwitch ? 0.8f : 0.9f) * fontHeight,
                        isMouseOver, isDown);
}

void VorloLookAndFeel::drawTickBoxAndText (juce::Graphics& g, juce::ToggleButton& button,
                                           float fontHeight, float boxSize, bool isMouseOver,
                                           bool isDown)
{
    constexpr float left = 4.0f;
    drawTickBox (g, button, left, 0.5f * (static_cast<float> (button.getHeight()) - boxSize),
                 boxSize, boxSize, button.getToggleState(), button.isEnabled(), isMouseOver,
                 isDown);

    if (button.getButtonText().isEmpty())
        return;

    auto colour = button.findColour (juce::ToggleButton::textColourId);

    if (button.isEnabled() && isMouseOver)
        colour = colour.brighter (0.3f);

    const auto x = juce::roundToInt (1.3f * boxSize) + static_cast<int> (left);
    g.setColour (colour.withMultipliedAlpha (button.isEnabled() ? 1.0f : 0.5f));
    g.setFont (zembra::getFontThatFits (
        juce::Font (fontHeight), button.getButtonText(),
        static_cast<float> (juce::jmax (1, button.getWidth() - x - 2)), fontHeight));
    g.drawFittedText (button.getButtonText(), x, 0, juce::jmax (0, button.getWidth() - x - 2),
                      button.getHeight(), juce::Justification::centredLeft, 10);
}

void VorloLookAndFeel::drawTickBox (juce::Graphics& g, juce::Component& component, float x, float y,
                                    float w, float h, bool ticked, bool isEnabled, bool isMouseOver,
                                    bool)
{
    const auto find = [&component, isEnabled] (int id)
    { return component.findColour (id).withMultipliedAlpha (isEnabled ? 1.0f : 0.4f); };

    const auto box = juce::Rectangle<float> (x, y, w, h);
    const auto lineWidth = 0.0625f * w;
    const auto outline = find (zembra::toggleBoxColourId);
    g.setColour (find (zembra::knobCapColourId));
    g.fillEllipse (box);
    g.setColour (isEnabled && isMouseOver ? outline.brighter (0.4f) : outline);
    g.drawEllipse (box.reduced (0.5f * lineWidth), lineWidth);

    const auto* const widget = component.findParentComponentOfClass<zembra::PluginWidget>();
    const auto isFrozen = widget != nullptr && widget->getParam().isFrozen();
    const auto onColour = isFrozen ? zembra::frozenColourId : zembra::knobValueColourId;
    g.setColour (find (ticked ? onColour : zembra::knobTrackOffColourId));
    g.fillEllipse (box.reduced (0.25f * w));
}
