// The table of the product's colours.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/gui/VorloPalette.h"

#include "framework/gui/lookandfeel/ColourIds.h"
#include "framework/gui/lookandfeel/Palette.h"

void applyVorloPalette (juce::LookAndFeel& lookAndFeel)
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
