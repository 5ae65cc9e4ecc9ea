// The owner of all secondary windows of an editor.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/PluginProcessor.h"
#include "framework/gui/dialogs/NonModalTopWindow.h"

namespace zembra
{

/** All windows exist from the start and stay hidden; they live as long as the editor.
    [message thread]
*/
class PluginDialogs final
{
public:
    PluginDialogs (juce::Component& editor, PluginProcessor& processor);
    ~PluginDialogs();

    /** @param forWindows       the look of all windows
        @param forAboutAndPrefs the look of the about and preferences window
    */
    void setLooks (juce::LookAndFeel& forWindows, juce::LookAndFeel& forAboutAndPrefs);

    /** Shows the about and preferences window at a tab, 0 if there is no such tab, and hides all
        others.
    */
    void showAboutOrPreferences (int tab);

    /** The tabs of that window; a product adds its own pages, whose content the tabs then own. */
    juce::TabbedComponent& getAboutPrefsTabs() noexcept { return aboutPrefsTabs; }
    NonModalTopWindow& getAboutPrefsWindow() noexcept { return aboutPrefsWindow; }

    /** Keeps every window on its display after the editor has changed its size. */
    void refreshBounds();

private:
    std::array<NonModalTopWindow*, 1> getWindows() noexcept { return { &aboutPrefsWindow }; }
    void applyWindowColours();

    juce::TabbedComponent aboutPrefsTabs{ juce::TabbedButtonBar::TabsAtTop };
    NonModalTopWindow aboutPrefsWindow;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PluginDialogs)
};

} // namespace zembra
