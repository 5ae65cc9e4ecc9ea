// A bubble next to a widget with the text of its value.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

class PluginWidget;

/** Appears a moment after it was armed, and follows its widget's text. */
class PopupBubbleComponent final : public juce::BubbleComponent, public juce::Timer
{
public:
    /** What the bubble asks of its look and feel. */
    class ZembraLookAndFeelMethods
    {
    public:
        virtual ~ZembraLookAndFeelMethods() = default;

        virtual juce::Font getFont (PopupBubbleComponent&, PluginWidget&) = 0;

        /** Flags of juce::BubbleComponent::BubblePlacement. */
        virtual int getAllowedPlacement (PopupBubbleComponent&, PluginWidget&) = 0;
    };

    explicit PopupBubbleComponent (PluginWidget& widget);
    ~PopupBubbleComponent() override;

    /** The bubble appears, or goes, when this time has passed. */
    void arm (bool shouldBeVisible, int milliseconds);

    /** Takes the text and moves next to the widget. */
    void setText (const juce::String& newText);
    const juce::String& getText() const noexcept { return text; }

    void lookAndFeelChanged() override;
    void visibilityChanged() override;
    void getContentSize (int& width, int& height) override;
    void paintContent (juce::Graphics&, int width, int height) override;
    void timerCallback() override;

private:
    void askLookAndFeel();

    PluginWidget& widget;
    juce::Font font;
    juce::String text;
    bool visibleWhenFired = false;
    bool isShowing = false;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PopupBubbleComponent)
};

} // namespace zembra
