// A drop-down whose items are buttons: shows the choice, and opens a menu of all of them.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/dialogs/ButtonsPopupMenu.h"

namespace zembra
{

class ButtonsDropDownList final : public juce::Component,
                                  private juce::Button::Listener,
                                  private ButtonsPopupMenu::Listener
{
public:
    /** The colours of the main button, as they are set on the list. */
    enum ColourIds : int
    {
        textColourId = 0x0ae0a910,
        backgroundColourId = 0x0ae02310
    };

    class Listener
    {
    public:
        virtual ~Listener() = default;
        virtual void itemSelected (ButtonsDropDownList* list, int index) = 0;
    };

    /** Takes the items: text, drawable or path buttons, all of one kind, at least one. */
    explicit ButtonsDropDownList (ButtonsPopupMenu::Buttons itemButtons);
    ~ButtonsDropDownList() override;

    /** Makes one item the choice and dresses the main button like it. */
    void setSelectedIndex (int index, bool notify);
    int getSelectedIndex() const noexcept { return selectedIndex; }

    juce::Button& getMainButton() const noexcept { return *mainButton; }
    ButtonsPopupMenu& getMenu() const noexcept { return *menu; }

    /** Opens the menu, as a click on the main button does. */
    void showMenu();

    void addListener (Listener* listener) { listeners.addIfNotAlreadyThere (listener); }
    void removeListener (Listener* listener) { listeners.removeFirstMatchingValue (listener); }

    void colourChanged() override;
    void lookAndFeelChanged() override { colourChanged(); }
    void resized() override;

private:
    void buttonClicked (juce::Button*) override;
    void menuButtonSelected (ButtonsPopupMenu*, int index) override;
    void dressMainButton (const juce::Button& item);

    juce::Array<Listener*> listeners;
    std::unique_ptr<ButtonsPopupMenu> menu;
    std::unique_ptr<juce::Button> mainButton;
    int selectedIndex = -1;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ButtonsDropDownList)
};

} // namespace zembra
