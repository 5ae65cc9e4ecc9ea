// A secondary window that freezes what lies behind it without a modal loop.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

/** Stands beside, or inside, the plug-in's editor. Hosts cope badly with modal loops, so an open
    window only disables the component that it belongs to. [message thread]
*/
class NonModalTopWindow : public juce::DialogWindow, private juce::Timer
{
public:
    /** Is told when the user closes the window by its close button. */
    class Listener
    {
    public:
        virtual ~Listener() = default;
        virtual void windowClosed (NonModalTopWindow*) = 0;
    };

    /** One child of a parent is never disabled, so that the parent keeps an enabled child. */
    static constexpr auto childThatStaysEnabled = "dialogWorkaroundTb";

    /** @param content              shown, not owned; its size becomes the window's
        @param centreAround         the window is centred on it each time it opens; may be null
        @param dialogParent         frozen while the window is up; may be null
        @param staysWithForeground  always on top, and hidden while the host isn't in front
    */
    NonModalTopWindow (const juce::String& title, juce::Colour background, juce::Component* content,
                       juce::Component* centreAround, juce::Component* dialogParent,
                       bool staysWithForeground);
    ~NonModalTopWindow() override;

    /** Opens or closes the window; use this in place of setVisible(). */
    void setWindowVisible (bool shouldBeVisible);

    /** True while the window counts as open, also when it is hidden with its host. */
    bool isWindowOpen() const noexcept { return wantsToBeVisible; }

    /** Added to the border around the content, in pixels. */
    void setExtraBorder (juce::BorderSize<int> newBorder);

    /** Applies the constrainer, or the present bounds, again. */
    void refreshBounds();

    void addListener (Listener* listener) { listeners.addIfNotAlreadyThere (listener); }
    void removeListener (Listener* listener) { listeners.removeFirstMatchingValue (listener); }

    /** The content, as long as it lives; null for a subclass with its own. */
    juce::Component* getShownContent() const { return contentRef; }

    void closeButtonPressed() override;
    bool escapeKeyPressed() override;
    juce::BorderSize<int> getContentComponentBorder() override;

protected:
    /** For a subclass that sets its own content. */
    NonModalTopWindow (const juce::String& title, juce::Colour background,
                       juce::Component* centreAround, juce::Component* dialogParent,
                       bool staysWithForeground);

private:
    void timerCallback() override;
    void open();
    void close();
    void freezeParent (bool shouldBeFrozen);

    juce::Array<Listener*> listeners;
    SafePointer<juce::Component> contentRef, dialogParent, centreAround;
    juce::BorderSize<int> extraBorder{ 0 };
    bool staysWithForeground;
    bool wantsToBeVisible = false;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (NonModalTopWindow)
};

} // namespace zembra
