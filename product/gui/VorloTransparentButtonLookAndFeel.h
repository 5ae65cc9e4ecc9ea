// The product's look for buttons without a background: icons and menu items.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "product/gui/VorloLookAndFeel.h"

class VorloTransparentButtonLookAndFeel final : public VorloLookAndFeel
{
public:
    VorloTransparentButtonLookAndFeel() = default;

    void drawButtonBackground (juce::Graphics&, juce::Button&, const juce::Colour&, bool,
                               bool) override
    {
    }

    /** Larger in menus and drop-down lists, where the button is all text. */
    juce::Font getTextButtonFont (juce::TextButton&, int buttonHeight) override;

private:
    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (VorloTransparentButtonLookAndFeel)
};
