// Cells and hover of a menu's row of buttons.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/dialogs/MultipleButtonMenuItem.h"

namespace zembra
{

namespace
{

constexpr int hoverPeriodMs = 40;

} // namespace

ButtonsPopupMenu::MultipleButtonMenuItem::MultipleButtonMenuItem (
    const std::vector<juce::Button*>& row, int heightToUse)
    : CustomComponent (false),
      buttons (row.begin(), row.end()),
      height (heightToUse)
{
    for (auto& button : buttons)
        addAndMakeVisible (button);
}

ButtonsPopupMenu::MultipleButtonMenuItem::~MultipleButtonMenuItem()
{
    stopTimer();

    for (auto& button : buttons)
        if (button != nullptr && button->getParentComponent() == this)
            removeChildComponent (button);
}

void ButtonsPopupMenu::MultipleButtonMenuItem::getIdealSize (int& idealWidth, int& idealHeight)
{
    auto cellWidth = 1;
    auto cellHeight = height;

    for (const auto& button : buttons)
    {
        if (button == nullptr)
            continue;

        if (height < 1)
            cellHeight = juce::jmax (cellHeight, button->getHeight());

        cellWidth = juce::jmax (cellWidth, button->getWidth());

        if (auto* const textButton = dynamic_cast<juce::TextButton*> (button.getComponent()))
            cellWidth = juce::jmax (cellWidth, textButton->getBestWidthForHeight (cellHeight));
    }

    idealWidth = cellWidth * static_cast<int> (buttons.size());
    idealHeight = cellHeight;
}

void ButtonsPopupMenu::MultipleButtonMenuItem::resized()
{
    const auto cellWidth = getWidth() / juce::jmax (1, static_cast<int> (buttons.size()));
    auto x = 0;

    for (auto& button : buttons)
    {
        if (button != nullptr)
            button->setBounds (x, 0, cellWidth, getHeight());

        x += cellWidth;
    }
}

void ButtonsPopupMenu::MultipleButtonMenuItem::paint (juce::Graphics&)
{
    // A repaint is all that a menu's item hears of being highlighted or not.
    if (isItemHighlighted())
    {
        showHover (findButtonUnderMouse());

        if (! isTimerRunning())
            startTimer (hoverPeriodMs);
    }
    else if (isTimerRunning())
    {
        stopTimer();
        showHover (nullptr);
    }
}

void ButtonsPopupMenu::MultipleButtonMenuItem::timerCallback()
{
    showHover (findButtonUnderMouse());
}

juce::Button* ButtonsPopupMenu::MultipleButtonMenuItem::findButtonUnderMouse() const
{
    const auto x = getMouseXYRelative().x;

    for (const auto& button : buttons)
        if (button != nullptr && x >= button->getX() && x < button->getRight())
            return button;

    return nullptr;
}

void ButtonsPopupMenu::MultipleButtonMenuItem::showHover (const juce::Button* hovered)
{
    for (auto& button : buttons)
        if (button != nullptr && ! button->isDown())
            button->setState (button == hovered ? juce::Button::buttonOver
                                                : juce::Button::buttonNormal);
}

} // namespace zembra
