// The law of the editor's size.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/PluginEditorListener.h"

#include "framework/gui/PluginEditor.h"

namespace zembra
{

namespace
{

/** Pixels that a host's own frame and bars need around an editor. */
constexpr int spareWidth = 10;
constexpr int spareHeight = 100;
constexpr int spareHeightWhenDragged = 90;

int scaled (int length, double factor)
{
    return factor > 0.0 ? juce::roundToInt (length * factor) : length;
}

} // namespace

void PluginEditorListener::componentMovedOrResized (juce::Component&, bool, bool wasResized)
{
    if (! wasResized)
        return;

    const auto* const display =
        juce::Desktop::getInstance().getDisplays().getDisplayForPoint (editor.getPosition());

    if (display == nullptr || ! fitTo (display->totalArea))
        editor.sizeAccepted();
}

bool PluginEditorListener::fitTo (juce::Rectangle<int> display)
{
    auto& limits = editor.constrainer;
    limits.setMaximumWidth (juce::jmax (limits.getMinimumWidth(), display.getWidth()));
    limits.setMaximumHeight (
        juce::jmax (limits.getMinimumHeight(), display.getHeight() - spareHeightWhenDragged));
    const auto aspect = editor.getAspectRatio();

    if (editor.getWidth() > display.getWidth())
    {
        const auto width = display.getWidth() - spareWidth;
        editor.setBounds (editor.getX(), editor.getY(), width, scaled (width, 1.0 / aspect));
        return true;
    }

    if (editor.getHeight() > display.getHeight())
    {
        const auto height = display.getHeight() - spareHeight;
        editor.setBounds (editor.getX(), editor.getY(), scaled (height, aspect), height);
        return true;
    }

    return false;
}

} // namespace zembra
