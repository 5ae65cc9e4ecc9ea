// One row of buttons in a menu.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/dialogs/ButtonsPopupMenu.h"

namespace zembra
{

/** Holds the buttons of one row by weak reference: the menu may outlive its owner for a moment. The
    menu swallows the mouse moves that would light a button, so the row looks where the mouse is.
*/
class ButtonsPopupMenu::MultipleButtonMenuItem final : public juce::PopupMenu::CustomComponent,
                                                       private juce::Timer
{
public:
    /** @param height  of the row, in pixels; below 1 for the buttons' own */
    MultipleButtonMenuItem (const std::vector<juce::Button*>& row, int height);
    ~MultipleButtonMenuItem() override;

    void getIdealSize (int& idealWidth, int& idealHeight) override;
    void resized() override;
    void paint (juce::Graphics&) override;

private:
    void timerCallback() override;
    void showHover (const juce::Button* hovered);
    juce::Button* findButtonUnderMouse() const;

    std::vector<SafePointer<juce::Button>> buttons;
    const int height;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (MultipleButtonMenuItem)
};

} // namespace zembra
