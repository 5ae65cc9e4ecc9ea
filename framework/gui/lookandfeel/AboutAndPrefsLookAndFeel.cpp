// Tabs of the about and preferences window.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/AboutAndPrefsLookAndFeel.h"

#include "framework/gui/lookandfeel/FittedText.h"
#include "framework/gui/lookandfeel/Palette.h"

namespace zembra
{

AboutAndPrefsLookAndFeel::AboutAndPrefsLookAndFeel()
{
    const juce::Colour ink{ 0xff222222 };
    applyColours (*this, {
                             { juce::Label::textColourId, ink },
                             { juce::ToggleButton::textColourId, ink },
                             { juce::TextEditor::textColourId, ink },
                             { juce::TextEditor::backgroundColourId, juce::Colour (0x00000000) },
                             { juce::ScrollBar::thumbColourId, juce::Colour (0xff909090) },
                         });
}

void AboutAndPrefsLookAndFeel::drawTabButton (juce::TabBarButton& button, juce::Graphics& g,
                                              bool isMouseOver, bool isDown)
{
    const auto area = button.getActiveArea().toFloat();
    const auto isFront = button.isFrontTab();
    const auto page = button.getTabBackgroundColour();
    const auto lift = isMouseOver || isDown ? 0.2f : 0.0f;
    const auto sheet = isFront ? page : page.interpolatedWith (juce::Colours::black, 0.55f - lift);

    g.setColour (sheet);
    g.fillRect (area.withTrimmedRight (1.0f));
    g.setColour (sheet.contrasting (isFront ? 0.85f : 0.7f));
    drawTextThatFits (g, button.getButtonText().trim(), area.reduced (4.0f, 0.0f),
                      juce::Font (0.5f * area.getHeight()), juce::Justification::centred);
}

} // namespace zembra
