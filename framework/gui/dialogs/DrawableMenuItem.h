// A menu's row that is a picture.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

class DrawableMenuItem final : public juce::PopupMenu::CustomComponent
{
public:
    /** Takes a copy of the drawable.
        @param size  of the row, in pixels
    */
    DrawableMenuItem (const juce::Drawable& drawable, juce::Point<int> size);

    void getIdealSize (int& idealWidth, int& idealHeight) override;
    void paint (juce::Graphics&) override;

private:
    const std::unique_ptr<juce::Drawable> drawable;
    const juce::Point<int> size;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (DrawableMenuItem)
};

} // namespace zembra
