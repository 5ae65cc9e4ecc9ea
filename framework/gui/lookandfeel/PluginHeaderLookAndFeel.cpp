// Accent and menu font of the strips.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/PluginHeaderLookAndFeel.h"

#include "framework/gui/lookandfeel/ColourIds.h"

namespace zembra
{

PluginHeaderLookAndFeel::PluginHeaderLookAndFeel()
{
    setColour (juce::TextButton::buttonColourId, juce::Colours::transparentBlack);
    setColour (juce::TextButton::buttonOnColourId, juce::Colours::transparentBlack);
}

void PluginHeaderLookAndFeel::setAccentColour (juce::Colour colour)
{
    for (const int id :
         { static_cast<int> (juce::PopupMenu::highlightedTextColourId),
           static_cast<int> (knobValueColourId),
           static_cast<int> (juce::TextButton::textColourOnId), static_cast<int> (accentColourId),
           static_cast<int> (freezerMarkColourId) })
        setColour (id, colour);
}

juce::Font PluginHeaderLookAndFeel::getPopupMenuFont()
{
    const auto height = static_cast<float> (getReferenceHeight()) * getHeaderFontRatio();
    return juce::Font (juce::jlimit (0.1f, 10000.0f, juce::jmax (11.0f, height)));
}

} // namespace zembra
