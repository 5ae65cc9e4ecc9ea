// Popup menus of the flat look.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/ColourIds.h"
#include "framework/gui/lookandfeel/FittedText.h"
#include "framework/gui/lookandfeel/ZembraFlatLookAndFeel.h"

namespace zembra
{

namespace
{

juce::Path makeTriangle (juce::Rectangle<float> area, float rotation)
{
    juce::Path triangle;
    triangle.addTriangle (-0.5f, 0.35f, 0.5f, 0.35f, 0.0f, -0.35f);
    triangle.applyTransform (juce::AffineTransform::rotation (rotation)
                                 .scaled (juce::jmin (area.getWidth(), area.getHeight()))
                                 .translated (area.getCentre()));
    return triangle;
}

} // namespace

void ZembraFlatLookAndFeel::drawPopupMenuBackground (juce::Graphics& g, int width, int height)
{
    g.fillAll (findColour (juce::PopupMenu::backgroundColourId));
    g.setColour (findColour (separatorColourId).brighter (0.15f));
    g.drawRect (0, 0, width, height);
}

void ZembraFlatLookAndFeel::drawPopupMenuItem (
    juce::Graphics& g, const juce::Rectangle<int>& area, bool isSeparator, bool isActive,
    bool isHighlighted, bool isTicked, bool hasSubMenu, const juce::String& text,
    const juce::String& shortcutText, const juce::Drawable* icon, const juce::Colour* textColour)
{
    auto row = area.toFloat().reduced (1.0f, 0.0f);

    if (isSeparator)
    {
        g.setColour (findColour (separatorColourId));
        g.fillRect (row.withSizeKeepingCentre (row.getWidth() - 10.0f, getHairline()));
        return;
    }

    if (isHighlighted && isActive)
    {
        g.setColour (findColour (juce::PopupMenu::highlightedBackgroundColourId));
        g.fillRect (row);
    }

    const auto colourId = isHighlighted && isActive ? juce::PopupMenu::highlightedTextColourId
                                                    : juce::PopupMenu::textColourId;
    const auto ownColour = textColour != nullptr && ! isHighlighted;
    const auto colour = ownColour ? *textColour : findColour (colourId);
    g.setColour (colour.withMultipliedAlpha (isActive ? 1.0f : 0.35f));

    const auto markArea = row.removeFromLeft (1.1f * row.getHeight());

    if (icon != nullptr)
        icon->drawWithin (g, markArea.reduced (3.0f),
                          juce::RectanglePlacement::centred
                              | juce::RectanglePlacement::onlyReduceInSize,
                          isActive ? 1.0f : 0.35f);
    else if (isTicked)
        g.fillEllipse (
            markArea.withSizeKeepingCentre (0.3f * row.getHeight(), 0.3f * row.getHeight()));

    if (hasSubMenu)
        g.fillPath (makeTriangle (
            row.removeFromRight (row.getHeight())
                .withSizeKeepingCentre (0.4f * row.getHeight(), 0.4f * row.getHeight()),
            juce::MathConstants<float>::halfPi));

    row.removeFromRight (0.4f * row.getHeight());
    const auto font =
        getFontThatFits (getPopupMenuFont(), {}, row.getWidth(), row.getHeight() / 1.15f);

    if (shortcutText.isNotEmpty())
        drawTextThatFits (g, shortcutText, row, font.withHeight (0.8f * font.getHeight()),
                          juce::Justification::centredRight);

    drawTextThatFits (g, text, row, font, juce::Justification::centredLeft);
}

void ZembraFlatLookAndFeel::drawPopupMenuUpDownArrow (juce::Graphics& g, int width, int height,
                                                      bool isScrollUpArrow)
{
    const auto area = juce::Rectangle<int> (width, height).toFloat();
    g.fillAll (findColour (juce::PopupMenu::backgroundColourId));
    g.setColour (findColour (juce::PopupMenu::textColourId));
    g.fillPath (
        makeTriangle (area.withSizeKeepingCentre (0.4f * area.getHeight(), 0.4f * area.getHeight()),
                      isScrollUpArrow ? 0.0f : juce::MathConstants<float>::pi));
}

} // namespace zembra
