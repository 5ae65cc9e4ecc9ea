// The knob of the product's look.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/gui/VorloLookAndFeel.h"

#include "framework/gui/lookandfeel/ColourIds.h"
#include "framework/gui/widgets/Fader.h"
#include "product/gui/ValueColours.h"
#include "product/gui/VorloPalette.h"

namespace
{

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

} // namespace

VorloLookAndFeel::VorloLookAndFeel() { applyVorloPalette (*this); }

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

void VorloLookAndFeel::drawKeyboardFocus (juce::Graphics& g, zembra::PluginWidget& widget)
{
    const auto* const fader = dynamic_cast<zembra::Fader*> (&widget);

    if (fader == nullptr || ! fader->getSlider().isRotary())
    {
        ZembraFlatLookAndFeel::drawKeyboardFocus (g, widget);
        return;
    }

    // Along the knob's own arc, open where its label stands.
    const auto area = widget.getLocalBounds().toFloat();
    const auto size = juce::jmin (area.getWidth(), area.getHeight());
    const auto line = juce::jmax (1.0f, 0.012f * size);
    const auto radius = 0.5f * (size - line);
    const auto sweep = fader->getSlider().getRotaryParameters();
    juce::Path arc;
    arc.addCentredArc (area.getCentreX(), area.getCentreY(), radius, radius, 0.0f,
                       sweep.startAngleRadians, sweep.endAngleRadians, true);
    g.setColour (widget.findColour (zembra::focusColourId));
    g.strokePath (arc, juce::PathStrokeType (line));
}
