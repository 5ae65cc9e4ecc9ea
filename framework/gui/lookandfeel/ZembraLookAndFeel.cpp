// Typefaces and the drawing that all looks of the framework share.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/ZembraLookAndFeel.h"

#include "framework/gui/lookandfeel/ColourIds.h"
#include "framework/gui/lookandfeel/Palette.h"
#include "framework/gui/lookandfeel/SystemTypefaces.h"

namespace zembra
{

namespace
{

constexpr float disabledAlpha = 0.4f;

} // namespace

ZembraLookAndFeel::ZembraLookAndFeel()
    : regularTypeface (getSystemTypeface (TypefaceStyle::regular)),
      boldTypeface (getSystemTypeface (TypefaceStyle::bold)),
      italicTypeface (getSystemTypeface (TypefaceStyle::italic))
{
    applyBasePalette (*this);
}

juce::Typeface::Ptr ZembraLookAndFeel::getTypefaceForFont (const juce::Font& font)
{
    const auto& family = font.getTypefaceName();

    // A text in a family that the system lacks would come out blank.
    if (family != juce::Font::getDefaultSansSerifFontName() && isFamilyAvailable (family))
        return LookAndFeel_V3::getTypefaceForFont (font);

    if (font.getTypefaceStyle().contains ("Bold"))
        return boldTypeface;

    return font.isItalic() ? italicTypeface : regularTypeface;
}

juce::Colour ZembraLookAndFeel::getStateColour (const juce::Component& component, int colourId)
{
    const auto alpha = component.isEnabled() ? 1.0f : disabledAlpha;
    return component.findColour (colourId).withMultipliedAlpha (alpha);
}

int ZembraLookAndFeel::getButtonsListBoxRowHeight (ButtonsListBox&, int listHeight)
{
    return juce::roundToInt (0.09f * static_cast<float> (listHeight));
}

void ZembraLookAndFeel::layoutConfirmDialog (ConfirmDialogComponent& dialog, juce::Label& question,
                                             juce::Button& button1, juce::Button& button2)
{
    auto area = dialog.getLocalBounds().reduced (10);
    auto row = area.removeFromBottom (juce::jlimit (20, 28, area.getHeight() / 3));
    question.setBounds (area);

    // Side by side, as wide as their texts may become in another language.
    constexpr int gap = 10;
    const auto width = juce::jmin (110, (row.getWidth() - gap) / 2);
    row = row.withSizeKeepingCentre (2 * width + gap, row.getHeight());
    button1.setBounds (row.removeFromLeft (width));
    button2.setBounds (row.removeFromRight (width));
}

void ZembraLookAndFeel::drawMidiLearnOverlay (juce::Graphics& g, PluginWidget& widget,
                                              bool isMouseOver, bool panelOpen)
{
    const auto area = widget.getLocalBounds().toFloat().reduced (1.0f);
    const auto corner = juce::jmin (4.0f, 0.1f * area.getHeight());
    const auto colour = widget.findColour (panelOpen ? midiLearnOpenColourId : midiLearnColourId);
    g.setColour (colour.withMultipliedAlpha (isMouseOver || panelOpen ? 1.0f : 0.6f));
    g.fillRoundedRectangle (area, corner);
    g.setColour (colour.withAlpha (0.9f));
    g.drawRoundedRectangle (area, corner, 1.0f);
}

int ZembraLookAndFeel::getMidiLearnPanelWidth (PluginWidget&)
{
    return juce::jmax (160, juce::roundToInt (0.6f * static_cast<float> (referenceHeight)));
}

int ZembraLookAndFeel::getMidiLearnPanelHeight (PluginWidget&)
{
    return juce::jmax (24, juce::roundToInt (0.09f * static_cast<float> (referenceHeight)));
}

void ZembraLookAndFeel::drawKeyboardFocus (juce::Graphics& g, PluginWidget& widget)
{
    const auto area = widget.getLocalBounds().toFloat().reduced (0.75f);
    g.setColour (widget.findColour (focusColourId));
    g.drawRoundedRectangle (area, juce::jmin (4.0f, 0.12f * area.getHeight()), 1.5f);
}

void ZembraLookAndFeel::drawFilledPathButton (juce::Graphics& g, FilledPathButton& button,
                                              juce::Rectangle<float> area, bool isMouseOver,
                                              bool isDown)
{
    const auto isOn = button.getToggleState();
    auto colour = getStateColour (button, isOn ? toggleTextColourId : toggleOffColourId);

    if (button.isEnabled() && (isMouseOver || isDown))
        colour = colour.brighter (isDown ? 0.7f : 0.4f);

    g.setColour (colour);
    g.fillPath (button.getPathFittedTo (area));
}

juce::Font ZembraLookAndFeel::getFont (PopupBubbleComponent&, PluginWidget&)
{
    return juce::Font (juce::jmax (12.0f, static_cast<float> (referenceHeight) / 26.0f));
}

int ZembraLookAndFeel::getAllowedPlacement (PopupBubbleComponent&, PluginWidget&)
{
    return juce::BubbleComponent::above | juce::BubbleComponent::below | juce::BubbleComponent::left
           | juce::BubbleComponent::right;
}

void ZembraLookAndFeel::drawBubble (juce::Graphics& g, juce::BubbleComponent& bubble,
                                    const juce::Point<float>& tip,
                                    const juce::Rectangle<float>& body)
{
    juce::Path shape;
    shape.addBubble (body.reduced (0.5f), body.getUnion ({ tip.x, tip.y, 1.0f, 1.0f }), tip, 3.0f,
                     juce::jmin (10.0f, 0.2f * body.getWidth(), 0.2f * body.getHeight()));
    g.setColour (bubble.findColour (juce::BubbleComponent::backgroundColourId));
    g.fillPath (shape);
    g.setColour (bubble.findColour (juce::BubbleComponent::outlineColourId));
    g.strokePath (shape, juce::PathStrokeType (1.0f));
}

void ZembraLookAndFeel::drawCallOutBoxBackground (juce::CallOutBox&, juce::Graphics& g,
                                                  const juce::Path& shape, juce::Image&)
{
    g.setColour (findColour (juce::BubbleComponent::backgroundColourId));
    g.fillPath (shape);
    g.setColour (findColour (juce::BubbleComponent::outlineColourId));
    g.strokePath (shape, juce::PathStrokeType (1.0f));
}

int ZembraLookAndFeel::getCallOutBoxBorderSize (const juce::CallOutBox&) { return 14; }

void ZembraLookAndFeel::drawCornerResizer (juce::Graphics& g, int width, int height,
                                           bool isMouseOver, bool isMouseDragging)
{
    const auto w = static_cast<float> (width);
    const auto h = static_cast<float> (height);
    g.setColour (juce::Colours::white.withAlpha (isMouseOver || isMouseDragging ? 0.6f : 0.22f));

    for (const auto inset : { 0.35f, 0.6f, 0.85f })
        g.drawLine (w * inset, h - 2.0f, w - 2.0f, h * inset, 1.0f);
}

void ZembraLookAndFeel::drawScrollbar (juce::Graphics& g, juce::ScrollBar& bar, int x, int y,
                                       int width, int height, bool isVertical, int thumbStart,
                                       int thumbSize, bool isMouseOver, bool isMouseDown)
{
    auto thumb = isVertical ? juce::Rectangle<int> (x, thumbStart, width, thumbSize)
                            : juce::Rectangle<int> (thumbStart, y, thumbSize, height);
    auto colour = bar.findColour (juce::ScrollBar::thumbColourId);

    if (isMouseOver || isMouseDown)
        colour = colour.brighter (isMouseDown ? 0.6f : 0.3f);

    const auto area = thumb.toFloat().reduced (2.0f);
    g.setColour (colour);
    g.fillRoundedRectangle (area, 0.5f * juce::jmin (area.getWidth(), area.getHeight()));
}

} // namespace zembra
