// Colours and menu font of the secondary windows.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/PluginWindowsLookAndFeel.h"

#include "framework/gui/lookandfeel/ColourIds.h"

namespace zembra
{

PluginWindowsLookAndFeel::PluginWindowsLookAndFeel()
{
    const auto background = findColour (windowBackgroundColourId);
    setColour (juce::ResizableWindow::backgroundColourId, background);
    setColour (juce::TabbedComponent::backgroundColourId, background);
}

juce::Font PluginWindowsLookAndFeel::getPopupMenuFont()
{
    return juce::Font (juce::jmax (11.0f, static_cast<float> (getReferenceHeight()) / 30.0f));
}

} // namespace zembra
