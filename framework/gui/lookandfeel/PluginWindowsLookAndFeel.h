// The look of the editor's secondary windows and of the strips' menus.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/lookandfeel/ZembraFlatLookAndFeel.h"

namespace zembra
{

class PluginWindowsLookAndFeel : public ZembraFlatLookAndFeel
{
public:
    PluginWindowsLookAndFeel();

    /** A thirtieth of the reference height; never below 11 pixels. */
    juce::Font getPopupMenuFont() override;

private:
    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PluginWindowsLookAndFeel)
};

} // namespace zembra
