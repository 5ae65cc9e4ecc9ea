// The native side of a window without a display, and the events that go in there.
// SPDX-License-Identifier: GPL-3.0-or-later
#if defined(__linux__)
#define JUCE_GUI_BASICS_INCLUDE_XHEADERS 1
#endif
#include "tests/support/TestWindow.h"

#include <cstdlib>

namespace juce
{
bool dispatchNextMessageOnSystemQueue (bool returnIfNoPendingMessages);
}

namespace
{

/** Between two events; well above what JUCE joins to a double click when clicks are apart. */
constexpr int shortPauseMs = 20;
constexpr int longPauseMs = 2000;

void ignoreXErrors()
{
#if JUCE_LINUX
    static const auto once = []
    {
        juce::Desktop::getInstance()
            .getDisplays(); // loads the display's library, with its functions
        juce::X11Symbols::getInstance()->xSetErrorHandler ([] (::Display*, ::XErrorEvent*)
                                                           { return 0; });
        return true;
    }();
    juce::ignoreUnused (once);
#endif
}

} // namespace

/** A native window that is nowhere. */
class TestWindow::Peer final : public juce::ComponentPeer
{
public:
    Peer (TestWindow& windowToUse, int flags)
        : ComponentPeer (windowToUse, flags),
          window (windowToUse)
    {
    }

    void* getNativeHandle() const override { return nullptr; }
    void setVisible (bool) override {}
    void setTitle (const juce::String&) override {}

    void setBounds (const juce::Rectangle<int>& newBounds, bool) override
    {
        bounds = newBounds;
        handleMovedOrResized();
    }

    juce::Rectangle<int> getBounds() const override { return bounds; }

    juce::Point<float> localToGlobal (juce::Point<float> p) override
    {
        return p + bounds.getPosition().toFloat();
    }

    juce::Point<float> globalToLocal (juce::Point<float> p) override
    {
        return p - bounds.getPosition().toFloat();
    }

    using ComponentPeer::globalToLocal;
    using ComponentPeer::localToGlobal;

    void setMinimised (bool) override {}
    bool isMinimised() const override { return false; }
    void setFullScreen (bool) override {}
    bool isFullScreen() const override { return false; }
    void setIcon (const juce::Image&) override {}

    bool contains (juce::Point<int> p, bool) const override
    {
        return bounds.withZeroOrigin().contains (p);
    }

    OptionalBorderSize getFrameSizeIfPresent() const override { return {}; }
    juce::BorderSize<int> getFrameSize() const override { return {}; }
    bool setAlwaysOnTop (bool) override { return true; }
    void toFront (bool) override {}
    void toBehind (ComponentPeer*) override {}
    bool isFocused() const override { return true; }
    void grabFocus() override {}
    void repaint (const juce::Rectangle<int>&) override { ++window.numRepaints; }
    void performAnyPendingRepaintsNow() override {}
    void setAlpha (float) override {}
    juce::StringArray getAvailableRenderingEngines() override { return { "none" }; }
    void textInputRequired (juce::Point<int>, juce::TextInputTarget&) override {}

private:
    TestWindow& window;
    juce::Rectangle<int> bounds;
};

TestWindow::TestWindow (juce::Component& content)
    : time (juce::Time::getMillisecondCounter() + juce::int64{ longPauseMs })
{
    if (juce::Desktop::getInstance().getDisplays().displays.isEmpty())
        fakeDisplay.emplace (juce::Rectangle<int> (1920, 1080));

    juce::ignoreUnused (hasDisplay());
    setSize (juce::jmax (1, content.getWidth()), juce::jmax (1, content.getHeight()));
    // Well inside the display: a fine drag wraps the mouse round at the edges.
    setTopLeftPosition (600, 400);
    addAndMakeVisible (content);
    setVisible (true);
    addToDesktop (0);
}

TestWindow::~TestWindow()
{
    // The mouse is one for all windows of the process: leave it with no button down.
    if (buttons.isAnyMouseButtonDown())
        release();

    removeFromDesktop();
}

juce::ComponentPeer* TestWindow::createNewPeer (int styleFlags, void*)
{
    return new Peer (*this, styleFlags);
}

void TestWindow::send (juce::ModifierKeys modifiers)
{
    time += shortPauseMs;
    buttons = modifiers;
    juce::ModifierKeys::currentModifiers = modifiers;
    getPeer()->handleMouseEvent (juce::MouseInputSource::InputSourceType::mouse, mouse, modifiers,
                                 juce::MouseInputSource::defaultPressure,
                                 juce::MouseInputSource::defaultOrientation, time);
}

void TestWindow::moveTo (const juce::Component& target, juce::Point<int> position)
{
    mouse = getLocalPoint (&target, position).toFloat();
    send (buttons);
}

void TestWindow::press (const juce::Component& target, juce::Point<int> position,
                        juce::ModifierKeys modifiers)
{
    moveTo (target, position);
    send (modifiers);
}

void TestWindow::dragBy (juce::Point<int> distance)
{
    mouse += distance.toFloat();
    send (buttons);
}

void TestWindow::release() { send (juce::ModifierKeys()); }

void TestWindow::click (const juce::Component& target)
{
    time += longPauseMs;
    press (target, target.getLocalBounds().getCentre());
    release();
}

void TestWindow::doubleClick (const juce::Component& target)
{
    click (target);
    send (juce::ModifierKeys::leftButtonModifier);
    release();
}

void TestWindow::drag (const juce::Component& target, juce::Point<int> distance, int numSteps,
                       juce::ModifierKeys modifiers)
{
    time += longPauseMs;
    press (target, target.getLocalBounds().getCentre(), modifiers);
    const auto start = mouse;

    for (int i = 1; i <= numSteps; ++i)
    {
        mouse =
            start + distance.toFloat() * (static_cast<float> (i) / static_cast<float> (numSteps));
        send (buttons);
    }

    release();
}

void TestWindow::turnWheel (const juce::Component& target, float notches)
{
    moveTo (target, target.getLocalBounds().getCentre());
    time += shortPauseMs;
    juce::MouseWheelDetails wheel{};
    wheel.deltaY = notches * 0.2f;
    getPeer()->handleMouseWheel (juce::MouseInputSource::InputSourceType::mouse, mouse, time,
                                 wheel);
}

bool TestWindow::type (const juce::KeyPress& key)
{
    const auto used = getPeer()->handleKeyPress (key);
    getPeer()->handleKeyUpOrDown (false);
    return used;
}

int TestWindow::takeNumRepaints() { return std::exchange (numRepaints, 0); }

void TestWindow::runMessages (int milliseconds)
{
    const auto end = juce::Time::getMillisecondCounter() + static_cast<juce::uint32> (milliseconds);

    while (juce::Time::getMillisecondCounter() < end)
        if (! juce::dispatchNextMessageOnSystemQueue (true))
            juce::Thread::sleep (1);
}

bool TestWindow::hasDisplay()
{
    const auto* const display = std::getenv ("DISPLAY");
    const auto isThere = display != nullptr && *display != 0;

    if (isThere)
        ignoreXErrors();

    return isThere;
}
