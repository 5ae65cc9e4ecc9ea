// Text that is made smaller, never squeezed or cut, where its room is small.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

/** The font at the height, at most its own, at which a line of text fits into a size in pixels. */
inline juce::Font getFontThatFits (const juce::Font& font, const juce::String& text, float width,
                                   float height)
{
    const auto textWidth = font.getStringWidthFloat (text);
    const auto widthScale = textWidth > width ? width / textWidth : 1.0f;
    const auto fittingHeight = juce::jmin (font.getHeight() * widthScale, height);
    return font.withHeight (juce::jmax (0.1f, fittingHeight));
}

/** Below this height in pixels letters are specks: the text is left out. */
inline constexpr float smallestLegibleHeight = 4.5f;

/** Draws one line of text in the context's colour, smaller if it has to be. */
inline void drawTextThatFits (juce::Graphics& g, const juce::String& text,
                              juce::Rectangle<float> area, const juce::Font& font,
                              juce::Justification justification)
{
    const auto fitted = getFontThatFits (font, text, area.getWidth(), area.getHeight());

    if (fitted.getHeight() < smallestLegibleHeight)
        return;

    g.setFont (fitted);
    g.drawText (text, area, justification, false);
}

} // namespace zembra
