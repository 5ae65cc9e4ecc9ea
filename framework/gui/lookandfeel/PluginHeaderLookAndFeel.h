// The look of the strips above and below the panels.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/lookandfeel/ZembraFlatLookAndFeel.h"

namespace zembra
{

class PluginHeaderLookAndFeel final : public ZembraFlatLookAndFeel
{
public:
    PluginHeaderLookAndFeel();

    /** Makes one colour, the product's, the mark of all that is active or highlighted. */
    void setAccentColour (juce::Colour colour);

    /** Follows the reference height by the header's own ratio; never below 11 pixels. */
    juce::Font getPopupMenuFont() override;

private:
    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PluginHeaderLookAndFeel)
};

} // namespace zembra
