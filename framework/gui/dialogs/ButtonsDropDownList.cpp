// The main button of a drop-down of buttons and its choice.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/dialogs/ButtonsDropDownList.h"

#include "framework/gui/widgets/FilledPathButton.h"

namespace zembra
{

namespace
{

constexpr int leastItemHeight = 10;
constexpr auto mainButtonName = "mainButton";

/** A button of the same kind as the items. */
std::unique_ptr<juce::Button> makeButtonLike (const juce::Button& item)
{
    if (dynamic_cast<const FilledPathButton*> (&item) != nullptr)
        return std::make_unique<FilledPathButton> (mainButtonName);

    if (const auto* drawable = dynamic_cast<const juce::DrawableButton*> (&item))
        return std::make_unique<juce::DrawableButton> (mainButtonName, drawable->getStyle());

    auto button = std::make_unique<juce::TextButton> (mainButtonName);
    button->setButtonText ({});
    return button;
}

} // namespace

ButtonsDropDownList::ButtonsDropDownList (ButtonsPopupMenu::Buttons itemButtons)
{
    jassert (! itemButtons.empty());
    mainButton = makeButtonLike (*itemButtons.front());
    menu = std::make_unique<ButtonsPopupMenu> (std::move (itemButtons));
    menu->addListener (this);
    mainButton->addListener (this);
    addAndMakeVisible (*mainButton);
    addChildComponent (*menu);
}

ButtonsDropDownList::~ButtonsDropDownList()
{
    mainButton->removeListener (this);
    menu->removeListener (this);
}

void ButtonsDropDownList::setSelectedIndex (int index, bool notify)
{
    const auto* const item = menu->getButton (index);

    if (index == selectedIndex || item == nullptr)
        return;

    selectedIndex = index;
    dressMainButton (*item);
    menu->setSelected (index, notify);
}

void ButtonsDropDownList::dressMainButton (const juce::Button& item)
{
    if (auto* const path = dynamic_cast<FilledPathButton*> (mainButton.get()))
    {
        const auto& source = dynamic_cast<const FilledPathButton&> (item);
        path->setPath (source.getPath());
        path->setInsets (source.getInsets());
        source.copyAllExplicitColoursTo (*path);
    }
    else if (auto* const drawable = dynamic_cast<juce::DrawableButton*> (mainButton.get()))
    {
        const auto& source = dynamic_cast<const juce::DrawableButton&> (item);
        drawable->setImages (source.getNormalImage(), source.getOverImage(), source.getDownImage());
    }
    else
    {
        mainButton->setButtonText (item.getButtonText());
    }

    mainButton->setTitle (item.getTitle());
}

void ButtonsDropDownList::showMenu()
{
    menu->show (*mainButton, mainButton->getWidth(),
                juce::jmax (leastItemHeight, mainButton->getHeight()));
}

void ButtonsDropDownList::buttonClicked (juce::Button*) { showMenu(); }

void ButtonsDropDownList::menuButtonSelected (ButtonsPopupMenu*, int index)
{
    if (index != selectedIndex)
    {
        selectedIndex = index;
        dressMainButton (*menu->getButton (index));
    }

    for (int i = listeners.size(); --i >= 0;)
        if (auto* const listener = listeners[i])
            listener->itemSelected (this, index);
}

void ButtonsDropDownList::colourChanged()
{
    for (int i = -1; i < menu->getNumButtons(); ++i)
    {
        auto& button = i < 0 ? *mainButton : *menu->getButton (i);
        copyAllExplicitColoursTo (button);
    }

    mainButton->setColour (juce::TextButton::textColourOffId, findColour (textColourId));
    mainButton->setColour (juce::TextButton::buttonColourId, findColour (backgroundColourId));
    repaint();
}

void ButtonsDropDownList::resized() { mainButton->setBounds (getLocalBounds()); }

} // namespace zembra
