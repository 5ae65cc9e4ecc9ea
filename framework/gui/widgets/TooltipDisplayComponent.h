// A line that shows the tooltip of whatever is under the mouse.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

/** Stands in for floating tooltips. Looks five times a second. */
class TooltipDisplayComponent final : public juce::Component, private juce::Timer
{
public:
    /** @param defaultText  shown while there is no tooltip */
    explicit TooltipDisplayComponent (const juce::String& defaultText);
    ~TooltipDisplayComponent() override { stopTimer(); }

    juce::String getShownText() const { return label.getText(); }

    void paint (juce::Graphics&) override;
    void resized() override;
    void colourChanged() override;
    void lookAndFeelChanged() override { colourChanged(); }

private:
    void timerCallback() override;

    const juce::String defaultText;
    juce::Label label;
    const juce::Component* currentComponent = nullptr;
    juce::String currentTip;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (TooltipDisplayComponent)
};

} // namespace zembra
