// The buttons of the LFO's menu of note values.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/dialogs/ButtonsPopupMenu.h"

/** A button named "n/d", with "d" for a dotted and "T" for a triplet value.
    @param lookAndFeel  outlives the button
*/
std::unique_ptr<juce::Button> makePeriodButton (int numerator, int denominator, bool isDotted,
                                                bool isTriplet, juce::LookAndFeel& lookAndFeel);

/** Eleven rows of three, from the longest value to the shortest; the index of a button is the value
    of `lfoSyncedPeriod` that it stands for.
*/
zembra::ButtonsPopupMenu::Buttons makePeriodButtons (juce::LookAndFeel& lookAndFeel);
