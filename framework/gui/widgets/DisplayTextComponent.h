// A text to read, with a scroll bar.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

/** Takes juce::TextEditor's colours. */
class DisplayTextComponent final : public juce::Component
{
public:
    DisplayTextComponent();

    void setText (const juce::String& text);
    juce::String getText() const { return view.getText(); }

    void colourChanged() override;
    void lookAndFeelChanged() override { colourChanged(); }
    void resized() override { view.setBounds (getLocalBounds()); }

private:
    juce::TextEditor view;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (DisplayTextComponent)
};

} // namespace zembra
