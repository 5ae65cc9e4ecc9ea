// The windows of an editor and their common looks.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/dialogs/PluginDialogs.h"

#include "framework/gui/lookandfeel/ColourIds.h"

namespace zembra
{

namespace
{

const juce::Colour windowBackground{ 0xff191919 };

} // namespace

PluginDialogs::PluginDialogs (juce::Component& editor, PluginProcessor& processor)
    : aboutPrefsWindow (processor.getName(), windowBackground, &aboutPrefsTabs, &editor, &editor,
                        true)
{
    aboutPrefsTabs.setOutline (0);
    aboutPrefsWindow.setExtraBorder ({ 0, 0, 2, 0 });
    aboutPrefsWindow.setSize (350, 250);
    applyWindowColours();
}

PluginDialogs::~PluginDialogs()
{
    for (auto* window : getWindows())
        window->setLookAndFeel (nullptr);
}

void PluginDialogs::setLooks (juce::LookAndFeel& forWindows, juce::LookAndFeel& forAboutAndPrefs)
{
    for (auto* window : getWindows())
        window->setLookAndFeel (window == &aboutPrefsWindow ? &forAboutAndPrefs : &forWindows);

    applyWindowColours();
}

void PluginDialogs::applyWindowColours()
{
    for (auto* window : getWindows())
        window->setColour (juce::ResizableWindow::backgroundColourId,
                           window->findColour (windowBackgroundColourId));
}

void PluginDialogs::showAboutOrPreferences (int tab)
{
    const auto exists = juce::isPositiveAndBelow (tab, aboutPrefsTabs.getNumTabs());
    aboutPrefsTabs.setCurrentTabIndex (exists ? tab : 0);

    for (auto* window : getWindows())
        window->setWindowVisible (window == &aboutPrefsWindow);
}

void PluginDialogs::refreshBounds()
{
    for (auto* window : getWindows())
        window->refreshBounds();
}

} // namespace zembra
