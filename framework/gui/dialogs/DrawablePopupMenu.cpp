// Showing a menu of pictures.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/dialogs/DrawablePopupMenu.h"

#include "framework/gui/dialogs/DrawableMenuItem.h"

namespace zembra
{

void DrawablePopupMenu::addItem (const juce::Drawable& drawable)
{
    drawables.push_back (drawable.createCopy());
}

void DrawablePopupMenu::show (juce::Component& target, int selectedIndex,
                              std::function<void (int)> chosen)
{
    if (menuOpen || drawables.empty())
        return;

    menuOpen = true;
    juce::PopupMenu menu;
    menu.setLookAndFeel (&getLookAndFeel());
    const juce::Point<int> size{ target.getWidth(), target.getHeight() };

    for (int i = 0; i < getNumItems(); ++i)
    {
        juce::PopupMenu::Item item;
        item.itemID = i + 1;
        item.isTicked = i == selectedIndex;
        item.customComponent = new DrawableMenuItem (*drawables[static_cast<size_t> (i)], size);
        menu.addItem (std::move (item));
    }

    const auto options = juce::PopupMenu::Options()
                             .withTargetComponent (target)
                             .withMinimumWidth (size.x)
                             .withInitiallySelectedItem (selectedIndex + 1);
    menu.showMenuAsync (options,
                        [safeThis = SafePointer (this), chosen = std::move (chosen)] (int result)
                        {
                            if (safeThis == nullptr)
                                return;

                            safeThis->menuOpen = false;

                            if (result > 0 && chosen != nullptr)
                                chosen (result - 1);
                        });
}

} // namespace zembra
