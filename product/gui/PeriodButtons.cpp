// Makes the buttons of the LFO's menu of note values.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/gui/PeriodButtons.h"

std::unique_ptr<juce::Button> makePeriodButton (int numerator, int denominator, bool isDotted,
                                                bool isTriplet, juce::LookAndFeel& lookAndFeel)
{
    const auto text = juce::String (numerator) + "/" + juce::String (denominator)
                      + (isDotted    ? "d"
                         : isTriplet ? "T"
                                     : "");
    auto button = std::make_unique<juce::TextButton> (text);
    button->setClickingTogglesState (true);
    button->setLookAndFeel (&lookAndFeel);
    return button;
}

zembra::ButtonsPopupMenu::Buttons makePeriodButtons (juce::LookAndFeel& lookAndFeel)
{
    zembra::ButtonsPopupMenu::Buttons buttons;
    const auto addRow = [&] (int numerator, int denominator)
    {
        buttons.push_back (makePeriodButton (numerator, denominator, true, false, lookAndFeel));
        buttons.push_back (makePeriodButton (numerator, denominator, false, false, lookAndFeel));
        buttons.push_back (makePeriodButton (numerator, denominator, false, true, lookAndFeel));
    };

    for (const int wholeNotes : { 16, 8, 4, 2, 1 })
        addRow (wholeNotes, 1);

    for (const int denominator : { 2, 4, 8, 16, 32, 64 })
        addRow (1, denominator);

    return buttons;
}
