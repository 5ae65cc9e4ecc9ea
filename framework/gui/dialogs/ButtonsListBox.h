// A list whose rows are buttons that are on or off.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/dialogs/ButtonsListBoxModel.h"

namespace zembra
{

class ButtonsListBox final : public juce::Component, private juce::ChangeListener
{
public:
    /** What the list asks of its look and feel. */
    class ZembraLookAndFeelMethods
    {
    public:
        virtual ~ZembraLookAndFeelMethods() = default;

        /** In pixels; the list takes the larger of the two. */
        virtual int getButtonsListBoxMinimumRowHeight (ButtonsListBox&) { return 20; }
        virtual int getButtonsListBoxRowHeight (ButtonsListBox&, int listHeight) = 0;
    };

    class Listener
    {
    public:
        virtual ~Listener() = default;

        /** A row's button was clicked. */
        virtual void buttonClicked (const juce::String& /*name*/, bool /*state*/) {}

        /** One byte for each row, 1 if the row is selected. */
        virtual void selectionChanged (const juce::Array<juce::uint8>& selected) = 0;
    };

    using RowType = ButtonsListBoxModel::RowType;

    explicit ButtonsListBox (bool multipleSelection);
    ~ButtonsListBox() override;

    void addButton (const juce::String& name, RowType type);

    /** Selects a row or takes it out of the selection.
        @param deselectOthers  the row is then the only one
    */
    void setSelected (int row, bool shouldBeSelected, bool deselectOthers);
    bool isSelected (int row) const { return listBox.isRowSelected (row); }
    int getNumRows() const noexcept { return model.getNumButtons(); }

    juce::ListBox& getListBox() noexcept { return listBox; }

    void addListener (Listener* listener) { listeners.addIfNotAlreadyThere (listener); }
    void removeListener (Listener* listener) { listeners.removeFirstMatchingValue (listener); }

    void resized() override;
    void lookAndFeelChanged() override { resized(); }

private:
    void changeListenerCallback (juce::ChangeBroadcaster*) override;
    void rowClicked (int row);

    juce::Array<Listener*> listeners;
    const bool multiple;
    juce::ListBox listBox;
    ButtonsListBoxModel model;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ButtonsListBox)
};

} // namespace zembra
