// Font of buttons without a background.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/gui/VorloTransparentButtonLookAndFeel.h"

#include "framework/gui/dialogs/ButtonsDropDownList.h"

juce::Font VorloTransparentButtonLookAndFeel::getTextButtonFont (juce::TextButton& button,
                                                                 int buttonHeight)
{
    const auto isItem = button.findParentComponentOfClass<zembra::ButtonsDropDownList>() != nullptr
                        || button.findParentComponentOfClass<zembra::ButtonsPopupMenu>() != nullptr;
    return juce::Font (
        juce::jmax (0.1f, static_cast<float> (buttonHeight) * (isItem ? 0.9f : 0.55f)));
}
