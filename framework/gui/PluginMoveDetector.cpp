// The regular look at an editor's window.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/PluginMoveDetector.h"

#include "framework/gui/HostWindow.h"

#include <cmath>

namespace zembra
{

namespace
{

constexpr int periodMs = 59;

} // namespace

PluginMoveDetector::PluginMoveDetector (juce::Component& editorToUse) : editor (&editorToUse)
{
    check();
    startTimer (periodMs);
}

PluginMoveDetector::~PluginMoveDetector() { stopTimer(); }

bool PluginMoveDetector::isHiResScale (double scale)
{
    return scale > 1.0 && std::equal_to<>{}(std::fmod (scale, 2.0), 0.0);
}

void PluginMoveDetector::check()
{
    const auto inForeground = isHostInForeground();

    if (inForeground != isInForeground)
    {
        isInForeground = inForeground;
        listeners.call ([&] (Listener& l) { l.pluginBackgroundChanged (this, ! inForeground); });
    }

    if (inForeground && windowHasMoved())
    {
        listeners.call ([this] (Listener& l) { l.pluginMoved (this); });
        checkDisplay();
    }
}

bool PluginMoveDetector::windowHasMoved()
{
    if (topLevel == nullptr && editor != nullptr)
        topLevel = editor->getTopLevelComponent();

    auto* const peer = topLevel != nullptr ? topLevel->getPeer() : nullptr;

    if (peer == nullptr)
        return false;

    const auto position = getWindowPosition (*peer);

    if (position == lastPosition)
        return false;

    lastPosition = position;
    return true;
}

void PluginMoveDetector::checkDisplay()
{
    if (editor == nullptr)
        return;

    const auto centre = editor->getScreenBounds().getCentre();
    const auto* const display =
        juce::Desktop::getInstance().getDisplays().getDisplayForPoint (centre);
    const auto isOnHiResNow = display != nullptr && isHiResScale (display->scale);

    if (isOnHiResNow == isOnHiResDisplay)
        return;

    isOnHiResDisplay = isOnHiResNow;
    listeners.call ([&] (Listener& l) { l.pluginHiResChanged (this, isOnHiResNow); });
}

} // namespace zembra
