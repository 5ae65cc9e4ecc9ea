// Watches where an editor's window is, since a host doesn't tell.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/ListenerArray.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

/** A plug-in's window gets no message when the host moves the frame around it; menus, call-outs and
    the drawing for high resolution have to follow all the same. Looks every 59 ms.
    [message thread]
*/
class PluginMoveDetector final : private juce::Timer
{
public:
    class Listener
    {
    public:
        virtual ~Listener() = default;
        virtual void pluginMoved (PluginMoveDetector*) = 0;
        virtual void pluginBackgroundChanged (PluginMoveDetector*, bool isInBackground) = 0;
        virtual void pluginHiResChanged (PluginMoveDetector*, bool isOnHiResDisplay) = 0;
    };

    explicit PluginMoveDetector (juce::Component& editor);
    ~PluginMoveDetector() override;

    bool isOnHiRes() const noexcept { return isOnHiResDisplay; }

    void addListener (Listener* listener) { listeners.add (listener); }
    void removeListener (Listener* listener) { listeners.remove (listener); }

    /** One look, as the timer takes it. */
    void check();

    /** True for scales above 1 that are exact multiples of 2. */
    static bool isHiResScale (double scale);

private:
    void timerCallback() override { check(); }
    bool windowHasMoved();
    void checkDisplay();

    ListenerArray<Listener> listeners;
    juce::Component::SafePointer<juce::Component> editor, topLevel;
    juce::Point<float> lastPosition;
    bool isInForeground = false;
    bool isOnHiResDisplay = false;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PluginMoveDetector)
};

} // namespace zembra
