// The product's look at fixed sizes, for pages that don't scale with the editor.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "product/gui/VorloLookAndFeel.h"

class VorloUnscaledLabelLookAndFeel final : public VorloLookAndFeel
{
public:
    VorloUnscaledLabelLookAndFeel() = default;

    void drawButtonBackground (juce::Graphics&, juce::Button&, const juce::Colour& background,
                               bool isMouseOver, bool isDown) override;
    juce::Font getTextButtonFont (juce::TextButton&, int buttonHeight) override;
    void drawToggleButton (juce::Graphics&, juce::ToggleButton&, bool isMouseOver,
                           bool isDown) override;
    juce::Font getLabelFont (juce::Label&) override;
    void drawLabel (juce::Graphics&, juce::Label&) override;

private:
    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (VorloUnscaledLabelLookAndFeel)
};
