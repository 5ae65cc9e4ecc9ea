// Faders of the product's look.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/gui/ValueColours.h"
#include "product/gui/VorloLookAndFeel.h"

namespace
{

/** Fine lines beside a fader's groove, every 12 units; the one at 0 stands out. */
void drawFaderScale (juce::Graphics& g, juce::Slider& slider, float centreX, float radius,
                     juce::Colour colour)
{
    constexpr int interval = 12;
    const auto first = static_cast<int> (std::ceil (slider.getMinimum() / interval));
    const auto last = static_cast<int> (std::floor (slider.getMaximum() / interval));
    const auto thickness = juce::jmax (1.0f, 0.12f * radius);

    for (int i = first; i <= last; ++i)
    {
        const auto y = slider.getPositionOfValue (i * interval);
        const auto length = i == 0 ? 0.9f * radius : 0.55f * radius;
        g.setColour (colour.withMultipliedAlpha (i == 0 ? 1.0f : 0.55f));

        for (const auto side : { -1.0f, 1.0f })
        {
            const auto inner = centreX + side * 1.25f * radius;
            const auto outer = inner + side * length;
            g.fillRect (juce::Rectangle<float>::leftTopRightBottom (
                juce::jmin (inner, outer), y - 0.5f * thickness, juce::jmax (inner, outer),
                y + 0.5f * thickness));
        }
    }
}

} // namespace

int VorloLookAndFeel::getSliderThumbRadius (juce::Slider& slider)
{
    if (! slider.isVertical())
        return ZembraFlatLookAndFeel::getSliderThumbRadius (slider);

    return static_cast<int> (juce::jmin (0.1f * static_cast<float> (slider.getWidth()),
                                         0.1f * static_cast<float> (slider.getHeight())));
}

juce::Slider::SliderLayout VorloLookAndFeel::getSliderLayout (juce::Slider& slider)
{
    if (! slider.isVertical())
        return ZembraFlatLookAndFeel::getSliderLayout (slider);

    auto area = slider.getLocalBounds();
    const auto boxHeight = juce::roundToInt (0.12f * static_cast<float> (area.getHeight()));
    const auto boxWidth = juce::jmin (slider.getTextBoxWidth(), area.getWidth());
    juce::Slider::SliderLayout layout;

    switch (slider.getTextBoxPosition())
    {
    case juce::Slider::TextBoxBelow:
        layout.textBoxBounds = area.removeFromBottom (boxHeight);
        break;
    case juce::Slider::TextBoxAbove:
        layout.textBoxBounds = area.removeFromTop (boxHeight);
        break;
    case juce::Slider::TextBoxLeft:
        layout.textBoxBounds = area.removeFromLeft (boxWidth);
        break;
    case juce::Slider::TextBoxRight:
        layout.textBoxBounds = area.removeFromRight (boxWidth);
        break;
    case juce::Slider::NoTextBox:
        break;
    }

    layout.textBoxBounds = layout.textBoxBounds.withSizeKeepingCentre (
        layout.textBoxBounds.getWidth(), juce::jmin (boxHeight, layout.textBoxBounds.getHeight()));
    layout.sliderBounds = area.reduced (getSliderThumbRadius (slider));
    return layout;
}

void VorloLookAndFeel::drawLinearSlider (juce::Graphics& g, int x, int y, int width, int height,
                                         float sliderPos, float minSliderPos, float maxSliderPos,
                                         juce::Slider::SliderStyle style, juce::Slider& slider)
{
    if (style != juce::Slider::LinearVertical)
    {
        ZembraFlatLookAndFeel::drawLinearSlider (g, x, y, width, height, sliderPos, minSliderPos,
                                                 maxSliderPos, style, slider);
        return;
    }

    const auto area = juce::Rectangle<int> (x, y, width, height).toFloat();
    const auto radius = static_cast<float> (getSliderThumbRadius (slider));
    const auto thickness = juce::jmax (1.0f, 0.36f * radius);
    const auto groove = area.withSizeKeepingCentre (thickness, area.getHeight());
    const ValueColours shown (slider);

    drawFaderScale (g, slider, area.getCentreX(), radius, shown.track);
    g.setColour (shown.track);
    g.fillRoundedRectangle (groove, 0.5f * thickness);
    g.setColour (shown.value);
    g.fillRoundedRectangle (groove.withTop (juce::jmin (sliderPos, groove.getBottom())),
                            0.5f * thickness);

    // As wide as a knob's pointer beside the ring.
    drawKnobCap (g,
                 juce::Rectangle<float> (2.2f * radius, 2.2f * radius)
                     .withCentre ({ area.getCentreX(), sliderPos }),
                 slider);
}
