// The menu of a combo box.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/ExtendedComboBox.h"

namespace zembra
{

void ExtendedComboBox::showPopup()
{
    auto menu = *getRootMenu();
    menu.setLookAndFeel (&getLookAndFeel());
    const auto options = juce::PopupMenu::Options()
                             .withTargetComponent (this)
                             .withMinimumWidth (getWidth())
                             .withStandardItemHeight (getHeight())
                             .withItemThatMustBeVisible (getSelectedId())
                             .withInitiallySelectedItem (getSelectedId());
    menu.showMenuAsync (options,
                        [safeThis = SafePointer (this)] (int result)
                        {
                            if (safeThis == nullptr)
                                return;

                            safeThis->hidePopup();

                            if (result != 0)
                                safeThis->setSelectedId (result);
                        });
}

} // namespace zembra
