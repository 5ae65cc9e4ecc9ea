// The look of the about and preferences window.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/lookandfeel/PluginWindowsLookAndFeel.h"

namespace zembra
{

/** Draws tabs as plain sheets that take the colour of their page; texts are dark, since pages are
    light.
*/
class AboutAndPrefsLookAndFeel final : public PluginWindowsLookAndFeel
{
public:
    AboutAndPrefsLookAndFeel();

    void drawTabButton (juce::TabBarButton&, juce::Graphics&, bool isMouseOver,
                        bool isDown) override;
    void drawTabAreaBehindFrontButton (juce::TabbedButtonBar&, juce::Graphics&, int, int) override
    {
    }

private:
    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (AboutAndPrefsLookAndFeel)
};

} // namespace zembra
