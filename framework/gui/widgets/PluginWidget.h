// A component bound to one parameter: the base of every control of an editor.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/PluginProcessor.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

class PopupBubbleComponent;

/** Keeps a control and its parameter in step, in both directions.

    A change of the parameter may come on any thread: it only sets a flag, which the editor's poll
    picks up on the message thread. An edit of the user goes to the parameter at once, inside a host
    gesture and an undo transaction.
*/
class PluginWidget : public juce::Component,
                     public Param::Listener,
                     public juce::ComponentListener,
                     public juce::SettableTooltipClient
{
public:
    /** What a widget asks of its look and feel. */
    class ZembraLookAndFeelMethods
    {
    public:
        virtual ~ZembraLookAndFeelMethods() = default;

        /** Marks a widget that a MIDI controller can be learned for.
            @param panelOpen  the learn panel stands open for this widget
        */
        virtual void drawMidiLearnOverlay (juce::Graphics&, PluginWidget&, bool isMouseOver,
                                           bool panelOpen) = 0;

        /** The size of the learn panel that opens at the widget, in pixels. */
        virtual int getMidiLearnPanelWidth (PluginWidget&) = 0;
        virtual int getMidiLearnPanelHeight (PluginWidget&) = 0;

        /** Marks the widget that the keyboard moves; drawn over the control. */
        virtual void drawKeyboardFocus (juce::Graphics&, PluginWidget&) = 0;
    };

    /** Binds to the parameter with this id. An id that isn't in the set is a fault of the caller. */
    PluginWidget (PluginProcessor& processor, const juce::String& paramId);
    ~PluginWidget() override;

    /** Brings the control to the parameter's value. [message thread] */
    virtual void updateFromParam() = 0;

    /** Takes over what has changed since the last call; the editor calls it 25 times a second.
        [message thread]
    */
    void pollParam();

    /** The bound parameter; most widgets have one. */
    Param& getParam (int index = 0) const noexcept { return *params.getUnchecked (index); }

    /** In learn mode the control is disabled; a click on a learnable widget opens the panel. */
    void setMidiLearnMode (bool shouldBeOn);
    bool isMidiLearnable() const noexcept { return midiLearnable; }
    bool isInMidiLearnMode() const noexcept { return midiLearnMode; }

    /** A widget that shows its value bubble keeps the value's text in its tooltip. */
    void setShowsValueBubble (bool shouldShow) noexcept { showsValueBubble = shouldShow; }

    /** Takes the bubble away, if there is one. */
    void dismissBubble();

    /** Takes the learn panel away, if there is one. */
    void dismissLearnCallOut();

    /** Where the child that has the keyboard focus stands; empty if none has. */
    juce::Rectangle<int> getFocusedChildBounds() const;

    /** The bubble at the widget; null if none is up. */
    PopupBubbleComponent* getBubble() const noexcept { return bubble.get(); }

    void paramChanged (Param*, double plain, double normalised, int source) override;
    void paramEnabledChanged (Param*, bool disabled) override;
    void paramFrozenChanged (Param*) override;
    void mouseEnter (const juce::MouseEvent&) override;
    void mouseExit (const juce::MouseEvent&) override;
    void mouseDown (const juce::MouseEvent&) override;
    void mouseWheelMove (const juce::MouseEvent&, const juce::MouseWheelDetails&) override;
    void lookAndFeelChanged() override;
    void paint (juce::Graphics&) override;
    void paintOverChildren (juce::Graphics&) override;
    void focusOfChildComponentChanged (FocusChangeType) override;
    void componentBeingDeleted (juce::Component&) override;

protected:
    /** Makes the panel in which a controller is learned for the widget's parameter; without one a
        click in learn mode does nothing.
    */
    virtual std::unique_ptr<juce::Component> createLearnPanel() { return {}; }

    /** The parameter has a new value: a widget with a bubble renews its tooltip. [message thread] */
    virtual void paramValueShown (Param*, double) {}

    /** Hears of a parameter's changes from now on, and of its present value at once. */
    void listenTo (Param& param) { param.addListener (&ear); }

    /** Hears of no parameter any more; no other thread is inside the widget when this returns. */
    void stopListening();

    /** Tells the host that the user takes hold of, or lets go of, a parameter. */
    void beginGesture (Param&);
    void endGesture (Param&);

    /** Sets a parameter as one undo step and one host gesture. */
    void editInOneStep (Param&, double newValue);

    juce::UndoManager& getUndoManager() const { return processor.getUndoManager(); }

    PluginProcessor& processor;
    std::atomic<bool> needsUpdate{ false };
    juce::Array<Param*> params;
    bool midiLearnMode = false;
    bool midiLearnable;
    bool midiLearnPanelOpen = false;
    bool showsValueBubble = true;

private:
    /** The listener that the parameters know. It is whole before the widget's own classes are
        constructed, and until after they are gone: other threads may call it all that time, and then
        no function that those classes override may be called.
    */
    class Ear final : public Param::Listener
    {
    public:
        explicit Ear (PluginWidget& widgetToUse) : widget (widgetToUse) {}
        void paramChanged (Param*, double plain, double normalised, int source) override;
        void paramEnabledChanged (Param*, bool disabled) override;
        void paramFrozenChanged (Param*) override;

    private:
        PluginWidget& widget;
    };

    bool isOnMessageThread() const;
    void applyPendingMarks();
    void showBubble();
    void openLearnPanel();
    void learnPanelClosed();
    void copyBubbleColours();
    ZembraLookAndFeelMethods* getMethods() const;

    std::atomic<bool> valueShownPending{ false };
    std::atomic<bool> frozenPending{ false };
    std::atomic<int> disabledPending{ -1 };
    Ear ear{ *this };
    bool focusCameByKeyboard = false;
    std::unique_ptr<juce::Component> learnPanel;
    juce::Component::SafePointer<juce::CallOutBox> learnCallOut;
    std::unique_ptr<juce::LookAndFeel> bubbleLookAndFeel;
    std::unique_ptr<PopupBubbleComponent> bubble;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PluginWidget)
};

} // namespace zembra
