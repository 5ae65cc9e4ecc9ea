// Sliders of the flat look: layout, text box and the straight kinds.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/ColourIds.h"
#include "framework/gui/lookandfeel/SliderTextBox.h"
#include "framework/gui/lookandfeel/ZembraFlatLookAndFeel.h"

namespace zembra
{

juce::Slider::SliderLayout ZembraFlatLookAndFeel::getSliderLayout (juce::Slider& slider)
{
    if (! slider.isRotary() || slider.getTextBoxPosition() == juce::Slider::NoTextBox)
        return ZembraLookAndFeel::getSliderLayout (slider);

    const auto bounds = slider.getLocalBounds();
    const auto size = static_cast<float> (juce::jmin (bounds.getWidth(), bounds.getHeight()));
    juce::Slider::SliderLayout layout;
    layout.sliderBounds = bounds;
    layout.textBoxBounds = bounds.withSizeKeepingCentre (juce::roundToInt (0.6f * size),
                                                         juce::roundToInt (0.36f * size));
    return layout;
}

juce::Label* ZembraFlatLookAndFeel::createSliderTextBox (juce::Slider& slider)
{
    return new SliderTextBox (slider);
}

int ZembraFlatLookAndFeel::getSliderThumbRadius (juce::Slider& slider)
{
    const auto across = slider.isHorizontal() ? slider.getHeight() : slider.getWidth();
    return juce::jlimit (3, 8, across / 3);
}

void ZembraFlatLookAndFeel::drawLinearSlider (juce::Graphics& g, int x, int y, int width,
                                              int height, float sliderPos, float, float,
                                              juce::Slider::SliderStyle, juce::Slider& slider)
{
    const auto area = juce::Rectangle<int> (x, y, width, height).toFloat();
    const auto radius = static_cast<float> (getSliderThumbRadius (slider));
    const auto thickness = juce::jmax (2.0f, 0.35f * radius);
    const auto isVertical = slider.isVertical();
    const auto groove = isVertical ? area.withSizeKeepingCentre (thickness, area.getHeight())
                                   : area.withSizeKeepingCentre (area.getWidth(), thickness);
    const auto value = isVertical ? groove.withTop (sliderPos) : groove.withRight (sliderPos);
    const auto thumb = isVertical ? juce::Point<float> (area.getCentreX(), sliderPos)
                                  : juce::Point<float> (sliderPos, area.getCentreY());

    g.setColour (getStateColour (slider, knobTrackColourId));
    g.fillRoundedRectangle (groove, 0.5f * thickness);
    g.setColour (getStateColour (slider, knobValueColourId));
    g.fillRoundedRectangle (value, 0.5f * thickness);
    g.fillEllipse (juce::Rectangle<float> (2.0f * radius, 2.0f * radius).withCentre (thumb));
}

} // namespace zembra
