// A page of tips on how to use the editor.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/widgets/DisplayTextComponent.h"

namespace zembra
{

class TipsComponent final : public juce::Component
{
public:
    /** Shows the tips that hold for every product, in the user's language. */
    TipsComponent();

    /** Appends a tip; an empty one is ignored. */
    void addTip (const juce::String& text);

    int getNumTips() const noexcept { return tips.size(); }
    juce::String getText() const { return display.getText(); }

    void resized() override { display.setBounds (getLocalBounds()); }

private:
    DisplayTextComponent display;
    juce::StringArray tips;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (TipsComponent)
};

} // namespace zembra
