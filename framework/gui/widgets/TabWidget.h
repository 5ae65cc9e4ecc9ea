// A row or grid of buttons, one for each value of a choice parameter.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/widgets/PluginWidget.h"

namespace zembra
{

/** The button that is on stands for the value. Each choice is one undo step and one gesture. */
class TabWidget final : public PluginWidget, private juce::Button::Listener
{
public:
    /** Makes a juce::TextButton, named by its index, for each value. */
    TabWidget (PluginProcessor& processor, const juce::String& paramId);
    ~TabWidget() override;

    /** Replaces the button of one value; it takes over state and tooltip of the old one. */
    void setButton (int index, std::unique_ptr<juce::Button> button);

    juce::Button* getButton (int index) const { return buttons[index]; }
    int getNumButtons() const noexcept { return buttons.size(); }

    /** Help for each value, by index. */
    void setTooltips (const juce::StringArray& newTooltips);

    /** Buttons stand row by row, left to right, in equal cells. At least 1. */
    void setNumRows (int newNumRows);

    void updateFromParam() override;
    void mouseEnter (const juce::MouseEvent&) override;
    void resized() override;

private:
    void adopt (juce::Button&);
    void buttonClicked (juce::Button*) override;

    juce::OwnedArray<juce::Button> buttons;
    juce::StringArray tooltips;
    int numRows = 1;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (TabWidget)
};

} // namespace zembra
