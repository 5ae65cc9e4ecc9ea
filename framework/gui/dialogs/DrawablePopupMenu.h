// A menu of pictures.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

class DrawablePopupMenu final : public juce::Component
{
public:
    DrawablePopupMenu() = default;

    /** Appends a row; the menu keeps a copy of the drawable. */
    void addItem (const juce::Drawable& drawable);
    int getNumItems() const noexcept { return static_cast<int> (drawables.size()); }

    /** Opens the menu at `target`, with rows as large as it; nothing happens while it is open.
        @param selectedIndex  is ticked; -1 for none
        @param chosen         called with the index of the row that the user chose, if any, unless
                              this component is gone by then
    */
    void show (juce::Component& target, int selectedIndex, std::function<void (int index)> chosen);
    bool isMenuOpen() const noexcept { return menuOpen; }

private:
    std::vector<std::unique_ptr<juce::Drawable>> drawables;
    bool menuOpen = false;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (DrawablePopupMenu)
};

} // namespace zembra
