// One row of a list of buttons.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/dialogs/ButtonsListBoxModel.h"

namespace zembra
{

/** A toggle or text button that fills the row. */
class ButtonListBoxComponent final : public juce::Component, private juce::Button::Listener
{
public:
    using RowType = ButtonsListBoxModel::RowType;

    ButtonListBoxComponent (RowType type, std::function<void (int row)> clicked);
    ~ButtonListBoxComponent() override;

    /** Becomes the row of this number. */
    void show (int newRow, const juce::String& name, bool isSelected);
    RowType getType() const noexcept { return type; }
    juce::Button& getButton() const noexcept { return *button; }

    void resized() override { button->setBounds (getLocalBounds()); }

private:
    void buttonClicked (juce::Button*) override { clicked (row); }

    const RowType type;
    const std::function<void (int)> clicked;
    std::unique_ptr<juce::Button> button;
    int row = -1;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ButtonListBoxComponent)
};

} // namespace zembra
