// A menu whose items are buttons, several to a row.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

/** Owns the buttons. The one that is on is the choice. */
class ButtonsPopupMenu final : public juce::Component, private juce::Button::Listener
{
public:
    class MultipleButtonMenuItem;

    class Listener
    {
    public:
        virtual ~Listener() = default;
        virtual void menuButtonSelected (ButtonsPopupMenu*, int index) = 0;
    };

    using Buttons = std::vector<std::unique_ptr<juce::Button>>;

    explicit ButtonsPopupMenu (Buttons buttons);
    ~ButtonsPopupMenu() override;

    /** Opens the menu at `target`; nothing happens while it is open. */
    void show (juce::Component& target, int minimumWidth, int standardItemHeight);
    bool isMenuOpen() const noexcept { return menuOpen; }

    /** Makes one button the choice; an index out of range leaves everything as it was. */
    void setSelected (int index, bool notify);
    int getSelectedIndex() const noexcept { return selectedIndex; }

    /** The buttons in each row, at least 1; 3 at start. */
    void setColumns (int newColumns) { columns = juce::jmax (1, newColumns); }

    /** The menu's rows; the last one holds the remainder. */
    int getNumRows() const;
    std::vector<juce::Button*> getRow (int row) const;

    int getNumButtons() const noexcept { return static_cast<int> (buttons.size()); }
    juce::Button* getButton (int index) const;

    void addListener (Listener* listener) { listeners.addIfNotAlreadyThere (listener); }
    void removeListener (Listener* listener) { listeners.removeFirstMatchingValue (listener); }

private:
    void buttonClicked (juce::Button*) override;

    juce::Array<Listener*> listeners;
    Buttons buttons;
    bool menuOpen = false;
    int selectedIndex = -1;
    int columns = 3;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ButtonsPopupMenu)
};

} // namespace zembra
