// Making and refreshing the rows of a list of buttons.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/dialogs/ButtonsListBoxModel.h"

#include "framework/gui/dialogs/ButtonListBoxComponent.h"

namespace zembra
{

ButtonsListBoxModel::ButtonsListBoxModel (juce::ListBox& listBoxToUse,
                                          std::function<void (int)> rowClickedToUse)
    : listBox (listBoxToUse),
      rowClicked (std::move (rowClickedToUse))
{
}

juce::Component* ButtonsListBoxModel::refreshComponentForRow (int row, bool isSelected,
                                                              juce::Component* existing)
{
    std::unique_ptr<juce::Component> recycled (existing);

    if (! juce::isPositiveAndBelow (row, getNumButtons()))
        return nullptr;

    const auto& [name, type] = rows[static_cast<size_t> (row)];
    auto* component = dynamic_cast<ButtonListBoxComponent*> (recycled.get());

    if (component != nullptr && component->getType() == type)
        juce::ignoreUnused (recycled.release()); // the list takes it back as the result
    else
        component = new ButtonListBoxComponent (type, rowClicked);

    component->show (row, name, isSelected);
    return component;
}

void ButtonsListBoxModel::refreshButtons()
{
    for (int row = 0; row < getNumButtons(); ++row)
        if (auto* component =
                dynamic_cast<ButtonListBoxComponent*> (listBox.getComponentForRowNumber (row)))
            component->show (row, getName (row), listBox.isRowSelected (row));
}

void ButtonsListBoxModel::selectedRowsChanged (int)
{
    // The buttons follow the selection, whoever changed it.
    refreshButtons();
    sendSynchronousChangeMessage();
}

} // namespace zembra
