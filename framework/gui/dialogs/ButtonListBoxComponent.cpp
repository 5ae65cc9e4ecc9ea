// Making and dressing a row of a list of buttons.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/dialogs/ButtonListBoxComponent.h"

namespace zembra
{

namespace
{

std::unique_ptr<juce::Button> makeButton (ButtonsListBoxModel::RowType type)
{
    if (type == ButtonsListBoxModel::RowType::toggle)
        return std::make_unique<juce::ToggleButton>();

    return std::make_unique<juce::TextButton>();
}

} // namespace

ButtonListBoxComponent::ButtonListBoxComponent (RowType typeToUse,
                                                std::function<void (int)> clickedToUse)
    : type (typeToUse),
      clicked (std::move (clickedToUse)),
      button (makeButton (typeToUse))
{
    button->setClickingTogglesState (true);
    button->addListener (this);
    addAndMakeVisible (*button);
}

ButtonListBoxComponent::~ButtonListBoxComponent() { button->removeListener (this); }

void ButtonListBoxComponent::show (int newRow, const juce::String& name, bool isSelected)
{
    row = newRow;
    button->setButtonText (name);
    button->setToggleState (isSelected, juce::dontSendNotification);
}

} // namespace zembra
