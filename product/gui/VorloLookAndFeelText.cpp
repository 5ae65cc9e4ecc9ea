// Labels, value texts and menu font of the product's look.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/FittedText.h"
#include "product/gui/VorloLookAndFeel.h"

namespace
{

/** The knob that a label stands in as its value text; null for any other label. */
const juce::Slider* findKnobAround (const juce::Label& label)
{
    const auto* const slider = dynamic_cast<const juce::Slider*> (label.getParentComponent());
    return slider != nullptr && slider->isRotary() ? slider : nullptr;
}

/** Number above unit: both stay readable in a small ring. The number stands at the same place
    with a unit and without one, so that the knobs of a row line up.
*/
void drawKnobValue (juce::Graphics& g, const juce::String& text, juce::Rectangle<float> area,
                    const juce::Font& font, juce::Colour colour)
{
    const auto split = text.lastIndexOfChar (' ');
    const auto number = split < 0 ? text : text.substring (0, split);
    const auto unit = split < 0 ? juce::String() : text.substring (split + 1);

    const auto unitFont = font.withHeight (0.66f * font.getHeight());
    const auto numberArea = area.withSizeKeepingCentre (area.getWidth(), font.getHeight())
                                .translated (0.0f, -0.38f * font.getHeight());
    const auto unitArea = numberArea.translated (0.0f, 0.88f * font.getHeight());
    g.setColour (colour);
    zembra::drawTextThatFits (g, number, numberArea, font, juce::Justification::centred);
    g.setColour (colour.withMultipliedAlpha (0.65f));
    zembra::drawTextThatFits (g, unit, unitArea, unitFont, juce::Justification::centred);
}

} // namespace

juce::Font VorloLookAndFeel::getLabelFont (juce::Label& label)
{
    if (const auto* knob = findKnobAround (label))
        return juce::Font (0.2f
                           * static_cast<float> (juce::jmin (knob->getWidth(), knob->getHeight())));

    // In a small editor a label needs all of its height.
    const auto height = static_cast<float> (label.getHeight());
    return juce::Font (juce::jmax (0.1f, 0.62f * height, juce::jmin (height, 6.0f)));
}

void VorloLookAndFeel::drawLabel (juce::Graphics& g, juce::Label& label)
{
    g.fillAll (label.findColour (juce::Label::backgroundColourId));

    if (label.isBeingEdited())
        return;

    const auto area = label.getLocalBounds().toFloat();
    const auto colour = getStateColour (label, juce::Label::textColourId);

    if (findKnobAround (label) != nullptr)
    {
        drawKnobValue (g, label.getText(), area, getLabelFont (label), colour);
        return;
    }

    g.setColour (colour);
    zembra::drawTextThatFits (g, label.getText(), area, getLabelFont (label),
                              label.getJustificationType());
}

juce::Font VorloLookAndFeel::getPopupMenuFont()
{
    const auto height = juce::jmax (11.0f, static_cast<float> (getReferenceHeight()) / 30.0f);
    return juce::Font (juce::jlimit (0.1f, 10000.0f, height));
}
