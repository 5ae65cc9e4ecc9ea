// Selection and row height of a list of buttons.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/dialogs/ButtonsListBox.h"

namespace zembra
{

namespace
{

constexpr int defaultMinimumRowHeight = 20;

} // namespace

ButtonsListBox::ButtonsListBox (bool multipleSelection)
    : multiple (multipleSelection),
      model (listBox, [this] (int row) { rowClicked (row); })
{
    listBox.setModel (&model);
    listBox.setMultipleSelectionEnabled (multipleSelection);
    listBox.setClickingTogglesRowSelection (multipleSelection);
    model.addChangeListener (this);
    addAndMakeVisible (listBox);
}

ButtonsListBox::~ButtonsListBox()
{
    model.removeChangeListener (this);
    listBox.setModel (nullptr);
}

void ButtonsListBox::addButton (const juce::String& name, RowType type)
{
    model.add (name, type);
    listBox.updateContent();
}

void ButtonsListBox::setSelected (int row, bool shouldBeSelected, bool deselectOthers)
{
    if (shouldBeSelected)
        listBox.selectRow (row, true, deselectOthers);
    else
        listBox.deselectRow (row);
}

void ButtonsListBox::rowClicked (int row)
{
    if (multiple)
        listBox.flipRowSelection (row);
    else
        listBox.selectRow (row, true);

    // Of a single choice the chosen row stays on, however often it is clicked.
    model.refreshButtons();
    const auto name = model.getName (row);
    const auto state = isSelected (row);

    for (int i = listeners.size(); --i >= 0;)
        if (auto* const listener = listeners[i])
            listener->buttonClicked (name, state);
}

void ButtonsListBox::changeListenerCallback (juce::ChangeBroadcaster*)
{
    juce::Array<juce::uint8> selected;

    for (int row = 0; row < getNumRows(); ++row)
        selected.add (isSelected (row) ? 1 : 0);

    for (int i = listeners.size(); --i >= 0;)
        if (auto* const listener = listeners[i])
            listener->selectionChanged (selected);
}

void ButtonsListBox::resized()
{
    listBox.setBounds (getLocalBounds());
    auto* const methods = dynamic_cast<ZembraLookAndFeelMethods*> (&getLookAndFeel());
    const auto least = methods != nullptr ? methods->getButtonsListBoxMinimumRowHeight (*this)
                                          : defaultMinimumRowHeight;
    const auto wanted =
        methods != nullptr ? methods->getButtonsListBoxRowHeight (*this, getHeight()) : 1;
    listBox.setRowHeight (juce::jmax (1, least, wanted));
}

} // namespace zembra
