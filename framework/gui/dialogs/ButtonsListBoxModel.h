// The rows of a list of buttons.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

/** Names and kinds of the rows; tells its listeners when the list's selection has changed. */
class ButtonsListBoxModel final : public juce::ListBoxModel, public juce::ChangeBroadcaster
{
public:
    enum class RowType
    {
        toggle = 0,
        text = 1
    };

    /** @param listBox     the list that shows the rows
        @param rowClicked  called with the row whose button was clicked
    */
    ButtonsListBoxModel (juce::ListBox& listBox, std::function<void (int row)> rowClicked);

    void add (const juce::String& name, RowType type) { rows.push_back ({ name, type }); }
    int getNumButtons() const noexcept { return static_cast<int> (rows.size()); }
    const juce::String& getName (int row) const { return rows[static_cast<size_t> (row)].name; }

    /** Brings all visible buttons to the list's selection. */
    void refreshButtons();

    int getNumRows() override { return getNumButtons(); }
    void paintListBoxItem (int, juce::Graphics&, int, int, bool) override {}
    juce::Component* refreshComponentForRow (int row, bool isSelected,
                                             juce::Component* existing) override;
    void selectedRowsChanged (int lastRow) override;
    juce::String getNameForRow (int row) override { return getName (row); }

private:
    struct Row
    {
        juce::String name;
        RowType type;
    };

    juce::ListBox& listBox;
    const std::function<void (int)> rowClicked;
    std::vector<Row> rows;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ButtonsListBoxModel)
};

} // namespace zembra
