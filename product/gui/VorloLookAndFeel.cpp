// Colours and the knob of the product's look.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/gui/VorloLookAndFeel.h"

#include "framework/gui/lookandfeel/ColourIds.h"
#include "framework/gui/lookandfeel/Palette.h"
#include "product/gui/ControlledKnob.h"

namespace
{

void applyProductPalette (juce::LookAndFeel& lookAndFeel)
{
    const juce::Colour night{ 0xff111111 };
    const juce::Colour coal{ 0xff191919 };
    const juce::Colour steel{ 0xff444444 };
    const juce::Colour grey{ 0xff808080 };
    const juce::Colour light{ 0xffd3d3d3 };
    const juce::Colour gold{ 0xffc69858 };
    const juce::Colour red{ 0xffb91b18 };
    const juce::Colour clear{ 0x00000000 };
    const auto label = light.interpolatedWith (night, 0.25f);

    zembra::applyColours (lookAndFeel,
                          {
                              { zembra::knobCapColourId, night },
                              { zembra::knobTrackColourId, steel },
                              { zembra::knobTrackOffColourId, steel.withAlpha (0.4f) },
                              { zembra::knobValueColourId, gold },
                              { zembra::frozenColourId, juce::Colour (0xff0088ee) },
                              { juce::PopupMenu::backgroundColourId, coal },
                              { juce::PopupMenu::highlightedBackgroundColourId, coal },
                              { juce::PopupMenu::headerTextColourId, coal },
                              { juce::PopupMenu::textColourId, juce::Colour (0xffaeaeae) },
                              { juce::PopupMenu::highlightedTextColourId, gold },
                              { juce::Label::textColourId, label },
                              { juce::Label::backgroundColourId, clear },
                              { juce::Slider::textBoxTextColourId, light },
                              { juce::Slider::textBoxHighlightColourId, grey },
                              { juce::ToggleButton::textColourId, label },
                              { juce::TextButton::textColourOnId, gold },
                              { juce::TextButton::textColourOffId, steel },
                              { juce::TextButton::buttonColourId, clear },
                              { juce::TextButton::buttonOnColourId, clear },
                              { zembra::dropDownTextColourId, grey },
                              { zembra::mainBackgroundColourId, night },
                              { zembra::mainOutlineColourId, juce::Colour (0xff000000) },
                              { zembra::separatorColourId, juce::Colour (0xff292929) },
                              { zembra::tooltipBackgroundColourId, night.withAlpha (0.4f) },
                              { zembra::toggleTextColourId, gold },
                              { zembra::toggleOffColourId, steel },
                              { zembra::toggleBoxColourId, grey },
                              { zembra::accentColourId, red },
                              { zembra::focusColourId, light.withAlpha (0.7f) },
                          });
}

/** The part of a ring between two angles, in radians clockwise from the top. */
void fillRing (juce::Graphics& g, juce::Point<float> centre, float radius, float innerProportion,
               float from, float to, juce::Colour colour)
{
    juce::Path ring;
    ring.addPieSegment (juce::Rectangle<float> (2.0f * radius, 2.0f * radius).withCentre (centre),
                        from, to, innerProportion);
    g.setColour (colour);
    g.fillPath (ring);
}

/** The colours of a knob or fader as its parameter and its modulation make them. */
struct ValueColours
{
    explicit ValueColours (const juce::Slider& slider)
    {
        const auto alpha = slider.isEnabled() ? 1.0f : 0.4f;
        const auto find = [&slider, alpha] (int id)
        { return slider.findColour (id).withMultipliedAlpha (alpha); };

        if (const auto* knob = slider.findParentComponentOfClass<ControlledKnob>())
            modDepth = knob->getModDepth();

        const auto* const widget = slider.findParentComponentOfClass<zembra::PluginWidget>();
        const auto isFrozen = widget != nullptr && widget->getParam().isFrozen();
        track = find (zembra::knobTrackColourId);
        value = find (isFrozen ? zembra::frozenColourId : zembra::knobValueColourId);
        modulated = find (zembra::knobModColourId);
        pointer = isFrozen || modDepth <= 0.0f ? value : modulated;
        cap = find (zembra::knobCapColourId);
    }

    float modDepth = 0.0f;
    juce::Colour track, value, modulated, pointer, cap;
};

} // namespace

VorloLookAndFeel::VorloLookAndFeel() { applyProductPalette (*this); }

void VorloLookAndFeel::drawRotarySlider (juce::Graphics& g, int x, int y, int width, int height,
                                         float sliderPos, float startAngle, float endAngle,
                                         juce::Slider& slider)
{
    const auto size = static_cast<float> (juce::jmin (width, height));
    const auto centre = juce::Rectangle<int> (x, y, width, height).toFloat().getCentre();
    const auto radius = 0.45f * size;
    const auto thickness = 0.026f * size;
    const auto inner = (radius - thickness) / radius;
    const auto angle = startAngle + sliderPos * (endAngle - startAngle);
    const ValueColours shown (slider);

    fillRing (g, centre, radius, inner, startAngle, endAngle, shown.track);

    // The tip of the arc is the stretch through which the modulation pulls the value down.
    const auto tipStart = startAngle + (angle - startAngle) * (1.0f - shown.modDepth);

    if (shown.modDepth > 0.0f)
        fillRing (g, centre, radius, inner, tipStart, angle, shown.modulated);

    fillRing (g, centre, radius, inner, startAngle, tipStart, shown.value);

    const juce::Graphics::ScopedSaveState state (g);
    g.addTransform (juce::AffineTransform::rotation (angle).translated (
        centre.getPointOnCircumference (radius - 0.5f * thickness, angle)));
    drawKnobCap (g, juce::Rectangle<float> (6.0f * thickness, 6.0f * thickness).withCentre ({}),
                 slider);
}

void VorloLookAndFeel::drawKnobCap (juce::Graphics& g, juce::Rectangle<float> area,
                                    juce::Slider& slider)
{
    const auto radius = 0.5f * juce::jmin (area.getWidth(), area.getHeight());
    const ValueColours shown (slider);

    // Twice: over a faint ring one disc of a disabled knob would let too much through.
    g.setColour (shown.cap);
    g.fillEllipse (area.reduced (0.17f * radius));
    g.fillEllipse (area.reduced (0.17f * radius));

    auto colour = shown.pointer;

    if (slider.isEnabled() && slider.isMouseOverOrDragging (true))
        colour = colour.brighter (0.4f);

    g.setColour (colour);
    g.fillEllipse (area.reduced (0.45f * radius));
}

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

    g.setColour (shown.track);
    g.fillRoundedRectangle (groove, 0.5f * thickness);
    g.setColour (shown.value);
    g.fillRoundedRectangle (groove.withTop (juce::jmin (sliderPos, groove.getBottom())),
                            0.5f * thickness);

    // As wide as a knob's pointer beside the ring.
    drawKnobCap (g, juce::Rectangle<float> (2.2f * radius, 2.2f * radius)
                        .withCentre ({ area.getCentreX(), sliderPos }),
                 slider);
}
