// The host's window as the X server knows it.
// SPDX-License-Identifier: GPL-3.0-or-later
#define JUCE_GUI_BASICS_INCLUDE_XHEADERS 1
#include "framework/gui/HostWindow.h"

#include <unistd.h>

namespace zembra
{

namespace
{

using juce::X11Symbols;

// X.h's KeyPress and KeyRelease, whose macros JUCE takes away.
constexpr int keyPressType = 2;
constexpr int keyReleaseType = 3;

/** JUCE's connection to the X server; null without a display. */
::Display* getDisplay() { return juce::XWindowSystem::getInstance()->getDisplay(); }

int ignoreError (::Display*, ::XErrorEvent*) { return 0; }

/** Other processes' windows may vanish while they are asked about; without this, Xlib would end the
    host for it.
*/
class ErrorTrap
{
public:
    explicit ErrorTrap (::Display* displayToUse)
        : display (displayToUse),
          oldHandler (X11Symbols::getInstance()->xSetErrorHandler (ignoreError))
    {
    }

    ~ErrorTrap()
    {
        X11Symbols::getInstance()->xSync (display, False);
        X11Symbols::getInstance()->xSetErrorHandler (oldHandler);
    }

private:
    ::Display* const display;
    const ::XErrorHandler oldHandler;

    JUCE_DECLARE_NON_COPYABLE (ErrorTrap)
};

/** The windows from one up to, but without, the root. */
std::vector<::Window> getChainUpFrom (::Display* display, ::Window window)
{
    std::vector<::Window> chain;
    constexpr size_t deepestNesting = 64;

    while (window != 0 && chain.size() < deepestNesting)
    {
        ::Window root = 0, parent = 0, *children = nullptr;
        unsigned int numChildren = 0;

        if (X11Symbols::getInstance()->xQueryTree (display, window, &root, &parent, &children,
                                                   &numChildren)
            == 0)
            break;

        if (children != nullptr)
            X11Symbols::getInstance()->xFree (children);

        if (window == root)
            break;

        chain.push_back (window);
        window = parent;
    }

    return chain;
}

bool belongsToThisProcess (::Display* display, ::Window window)
{
    const auto atom = X11Symbols::getInstance()->xInternAtom (display, "_NET_WM_PID", True);

    if (atom == None)
        return false;

    ::Atom type = None;
    int format = 0;
    unsigned long numItems = 0, bytesLeft = 0;
    unsigned char* data = nullptr;
    X11Symbols::getInstance()->xGetWindowProperty (display, window, atom, 0, 1, False, XA_CARDINAL,
                                                   &type, &format, &numItems, &bytesLeft, &data);

    // Xlib hands 32-bit properties over as longs.
    const auto ours = data != nullptr && format == 32 && numItems == 1
                      && *reinterpret_cast<const unsigned long*> (data)
                             == static_cast<unsigned long> (::getpid());

    if (data != nullptr)
        X11Symbols::getInstance()->xFree (data);

    return ours;
}

/** True if one of this process's JUCE windows lies inside `topLevel`: a host that runs its plug-ins
    in a process apart shows them so.
*/
bool holdsWindowOfOurs (::Display* display, ::Window topLevel)
{
    const auto& desktop = juce::Desktop::getInstance();

    for (int i = 0; i < desktop.getNumComponents(); ++i)
        if (const auto* peer = desktop.getComponent (i)->getPeer())
        {
            const auto chain =
                getChainUpFrom (display, reinterpret_cast<::Window> (peer->getNativeHandle()));

            if (! chain.empty() && chain.back() == topLevel)
                return true;
        }

    return false;
}

bool isFocusInHost (::Display* display)
{
    ::Window focused = None;
    int revertTo = 0;
    X11Symbols::getInstance()->xGetInputFocus (display, &focused, &revertTo);

    // Nobody has the keyboard: nobody is in front of us.
    if (focused == None || focused == PointerRoot)
        return true;

    const auto chain = getChainUpFrom (display, focused);

    return std::any_of (chain.begin(), chain.end(),
                        [display] (::Window w) { return belongsToThisProcess (display, w); })
           || (! chain.empty() && holdsWindowOfOurs (display, chain.back()));
}

/** True if a window further up is an application's main window. `chain` starts with our own. */
bool isInsideForeignWindow (::Display* display, const std::vector<::Window>& chain)
{
    const auto atom = X11Symbols::getInstance()->xInternAtom (display, "WM_STATE", True);

    if (atom == None || chain.size() < 2)
        return false;

    return std::any_of (chain.begin() + 1, chain.end(),
                        [=] (::Window window)
                        {
                            ::Atom type = None;
                            int format = 0;
                            unsigned long numItems = 0, bytesLeft = 0;
                            unsigned char* data = nullptr;
                            X11Symbols::getInstance()->xGetWindowProperty (
                                display, window, atom, 0, 0, False, AnyPropertyType, &type, &format,
                                &numItems, &bytesLeft, &data);

                            if (data != nullptr)
                                X11Symbols::getInstance()->xFree (data);

                            return type != None;
                        });
}

/** JUCE's key codes are the low byte of a function key's symbol, or a Unicode character. */
::KeySym getKeySym (const juce::KeyPress& key)
{
    constexpr int functionKeys = 0xff00, juceExtendedFlag = 0x10000000, firstPrintable = 0x20;
    constexpr int lastLatin1 = 0xff, unicodeSymbols = 0x01000000;
    const auto code = key.getKeyCode();

    if ((code & juceExtendedFlag) != 0 || code < firstPrintable)
        return static_cast<::KeySym> (functionKeys | (code & 0xff));

    return static_cast<::KeySym> (code <= lastLatin1 ? code : unicodeSymbols | code);
}

void sendKey (::Display* display, ::Window target, const juce::KeyPress& key, int type)
{
    auto* const symbols = X11Symbols::getInstance();
    const auto modifiers = key.getModifiers();
    ::XEvent event{};
    event.xkey.type = type;
    event.xkey.display = display;
    event.xkey.window = target;
    event.xkey.root = symbols->xRootWindow (display, symbols->xDefaultScreen (display));
    event.xkey.time = CurrentTime;
    event.xkey.same_screen = True;
    event.xkey.keycode = symbols->xKeysymToKeycode (display, getKeySym (key));
    event.xkey.state = static_cast<unsigned int> ((modifiers.isShiftDown() ? ShiftMask : 0)
                                                  | (modifiers.isCtrlDown() ? ControlMask : 0)
                                                  | (modifiers.isAltDown() ? Mod1Mask : 0));

    // With propagation the event rises to the first window on the way up that listens to keys.
    symbols->xSendEvent (display, target, True,
                         type == keyPressType ? KeyPressMask : KeyReleaseMask, &event);
}

} // namespace

bool isHostInForeground()
{
    if (juce::Process::isForegroundProcess())
        return true;

    // Several timers of every open editor ask; the X server is asked 20 times a second at most.
    constexpr juce::uint32 freshForMs = 50;
    static juce::uint32 lastAsked = 0;
    static bool lastAnswer = true;
    const auto now = juce::Time::getMillisecondCounter();

    if (lastAsked != 0 && now - lastAsked < freshForMs)
        return lastAnswer;

    lastAsked = now;
    auto* const display = getDisplay();

    if (display == nullptr)
        return lastAnswer = true;

    const juce::XWindowSystemUtilities::ScopedXLock lock;
    const ErrorTrap trap (display);
    return lastAnswer = isFocusInHost (display);
}

juce::Point<float> getWindowPosition (juce::ComponentPeer& peer)
{
    auto* const display = getDisplay();

    if (display == nullptr)
        return {};

    const juce::XWindowSystemUtilities::ScopedXLock lock;
    const ErrorTrap trap (display);
    auto* const symbols = X11Symbols::getInstance();
    int x = 0, y = 0;
    ::Window child = None;
    symbols->xTranslateCoordinates (
        display, reinterpret_cast<::Window> (peer.getNativeHandle()),
        symbols->xRootWindow (display, symbols->xDefaultScreen (display)), 0, 0, &x, &y, &child);
    return { static_cast<float> (x), static_cast<float> (y) };
}

bool passKeyToHost (juce::Component& editor, const juce::KeyPress& key)
{
    auto* const display = getDisplay();
    const auto* const peer = editor.getPeer();

    if (display == nullptr || peer == nullptr)
        return false;

    const juce::XWindowSystemUtilities::ScopedXLock lock;
    const ErrorTrap trap (display);
    const auto chain =
        getChainUpFrom (display, reinterpret_cast<::Window> (peer->getNativeHandle()));

    if (! isInsideForeignWindow (display, chain))
        return false;

    sendKey (display, chain[1], key, keyPressType);
    sendKey (display, chain[1], key, keyReleaseType);
    return true;
}

} // namespace zembra
