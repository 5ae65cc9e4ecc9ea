// Showing, choosing and the rows of a menu of buttons.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/dialogs/ButtonsPopupMenu.h"

#include "framework/gui/dialogs/MultipleButtonMenuItem.h"

namespace zembra
{

ButtonsPopupMenu::ButtonsPopupMenu (Buttons buttonsToOwn) : buttons (std::move (buttonsToOwn))
{
    for (auto& button : buttons)
        button->addListener (this);
}

ButtonsPopupMenu::~ButtonsPopupMenu()
{
    for (auto& button : buttons)
        button->removeListener (this);
}

juce::Button* ButtonsPopupMenu::getButton (int index) const
{
    return juce::isPositiveAndBelow (index, getNumButtons())
               ? buttons[static_cast<size_t> (index)].get()
               : nullptr;
}

int ButtonsPopupMenu::getNumRows() const { return (getNumButtons() + columns - 1) / columns; }

std::vector<juce::Button*> ButtonsPopupMenu::getRow (int row) const
{
    std::vector<juce::Button*> found;

    for (int i = row * columns; i < juce::jmin ((row + 1) * columns, getNumButtons()); ++i)
        found.push_back (getButton (i));

    return found;
}

void ButtonsPopupMenu::show (juce::Component& target, int minimumWidth, int standardItemHeight)
{
    if (menuOpen || buttons.empty())
        return;

    menuOpen = true;

    for (auto& button : buttons)
        button->setBounds (target.getLocalBounds());

    juce::PopupMenu menu;
    menu.setLookAndFeel (&getLookAndFeel());

    for (int row = 0; row < getNumRows(); ++row)
        menu.addCustomItem (
            row + 1, std::make_unique<MultipleButtonMenuItem> (getRow (row), standardItemHeight),
            nullptr, {});

    const auto selectedRow = selectedIndex >= 0 ? selectedIndex / columns : -1;
    const auto options = juce::PopupMenu::Options()
                             .withTargetComponent (target)
                             .withMinimumWidth (minimumWidth)
                             .withMaximumNumColumns (columns)
                             .withStandardItemHeight (standardItemHeight)
                             .withInitiallySelectedItem (selectedRow + 1);
    menu.showMenuAsync (options,
                        [safeThis = SafePointer (this)] (int)
                        {
                            if (safeThis != nullptr)
                                safeThis->menuOpen = false;
                        });
}

void ButtonsPopupMenu::setSelected (int index, bool notify)
{
    auto* const chosen = getButton (index);

    if (chosen == nullptr)
        return;

    if (index == selectedIndex)
    {
        chosen->setToggleState (true, juce::dontSendNotification);
        return;
    }

    selectedIndex = index;

    for (auto& button : buttons)
        button->setToggleState (button.get() == chosen, juce::dontSendNotification);

    if (! notify)
        return;

    for (int i = listeners.size(); --i >= 0;)
        if (auto* const listener = listeners[i])
            listener->menuButtonSelected (this, index);
}

void ButtonsPopupMenu::buttonClicked (juce::Button* button)
{
    for (int i = 0; i < getNumButtons(); ++i)
        if (getButton (i) == button)
            setSelected (i, true);

    // A click on the choice that stands ends the menu like any other.
    if (auto* const row = button->findParentComponentOfClass<MultipleButtonMenuItem>())
        row->triggerMenuItem();
}

} // namespace zembra
