// A question with two buttons, as the content of a window.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

class ConfirmDialogComponent final : public juce::Component, private juce::Button::Listener
{
public:
    /** What the dialog asks of its look and feel: the layout. */
    class ZembraLookAndFeelMethods
    {
    public:
        virtual ~ZembraLookAndFeelMethods() = default;
        virtual void layoutConfirmDialog (ConfirmDialogComponent&, juce::Label& question,
                                          juce::Button& button1, juce::Button& button2) = 0;
    };

    class Listener
    {
    public:
        virtual ~Listener() = default;

        /** @param cancelled  true for the first button, false for the second */
        virtual void confirmDialogClosed (ConfirmDialogComponent*, bool cancelled) = 0;
    };

    /** @param button1Text  cancels
        @param button2Text  confirms
    */
    ConfirmDialogComponent (const juce::String& question, const juce::String& button1Text,
                            const juce::String& button2Text);
    ~ConfirmDialogComponent() override;

    void setQuestion (const juce::String& question);

    void addListener (Listener* listener) { listeners.addIfNotAlreadyThere (listener); }
    void removeListener (Listener* listener) { listeners.removeFirstMatchingValue (listener); }

    void resized() override;
    void lookAndFeelChanged() override { resized(); }

private:
    void buttonClicked (juce::Button*) override;

    juce::Array<Listener*> listeners;
    juce::LookAndFeel_V3 labelLookAndFeel;
    juce::Label questionLabel;
    juce::TextButton button1, button2;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ConfirmDialogComponent)
};

} // namespace zembra
