// A window without a display, whose mouse and keyboard a test moves.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/FakeDisplay.h"

/** Shows a component and feeds it mouse and key events through JUCE's own input path: hit test, mouse
    listeners, focus, click counts and drags behave as they do on a screen. No display is needed.
*/
class TestWindow final : public juce::Component
{
public:
    /** @param content  becomes the window's child, not owned; its size is the window's */
    explicit TestWindow (juce::Component& content);
    ~TestWindow() override;

    /** Positions are relative to `target`. Each call is one event, a while after the last. */
    void moveTo (const juce::Component& target, juce::Point<int> position);
    void press (const juce::Component& target, juce::Point<int> position,
                juce::ModifierKeys modifiers = juce::ModifierKeys::leftButtonModifier);
    void dragBy (juce::Point<int> distance);
    void release();

    void click (const juce::Component& target);
    void doubleClick (const juce::Component& target);

    /** Presses at the target's centre, drags in `numSteps` equal steps and lets go. */
    void drag (const juce::Component& target, juce::Point<int> distance, int numSteps = 10,
               juce::ModifierKeys modifiers = juce::ModifierKeys::leftButtonModifier);

    /** @param notches  positive away from the user */
    void turnWheel (const juce::Component& target, float notches);

    /** Presses and releases a key; false if nobody used it. */
    bool type (const juce::KeyPress& key);

    /** The number of repaints that were asked for since the last call. */
    int takeNumRepaints();

    /** Runs the message loop for this long. */
    static void runMessages (int milliseconds);

    /** True if native windows can be made. From then on an X error is no reason to end the process,
        as in a host's toolkit.
    */
    static bool hasDisplay();

private:
    class Peer;

    juce::ComponentPeer* createNewPeer (int styleFlags, void*) override;
    void send (juce::ModifierKeys modifiers);

    /** JUCE looks for the display of the mouse in a fine drag. */
    std::optional<FakeDisplay> fakeDisplay;
    juce::Point<float> mouse;
    juce::ModifierKeys buttons;
    juce::int64 time;
    int numRepaints = 0;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (TestWindow)
};
