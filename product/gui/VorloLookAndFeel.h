// The product's look: its colours, its knob, its faders and switches.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/lookandfeel/ZembraFlatLookAndFeel.h"

class VorloLookAndFeel : public zembra::ZembraFlatLookAndFeel
{
public:
    VorloLookAndFeel();

    void drawRotarySlider (juce::Graphics&, int x, int y, int width, int height, float sliderPos,
                           float startAngle, float endAngle, juce::Slider&) override;

    /** The pointer of a knob or the thumb of a fader: a dark disc with a bright one on it. */
    virtual void drawKnobCap (juce::Graphics&, juce::Rectangle<float> area, juce::Slider&);

    int getSliderThumbRadius (juce::Slider&) override;
    juce::Slider::SliderLayout getSliderLayout (juce::Slider&) override;
    void drawLinearSlider (juce::Graphics&, int x, int y, int width, int height, float sliderPos,
                           float minSliderPos, float maxSliderPos, juce::Slider::SliderStyle,
                           juce::Slider&) override;

    void drawButtonBackground (juce::Graphics&, juce::Button&, const juce::Colour& background,
                               bool isMouseOver, bool isDown) override;
    void drawToggleButton (juce::Graphics&, juce::ToggleButton&, bool isMouseOver,
                           bool isDown) override;
    void drawTickBox (juce::Graphics&, juce::Component&, float x, float y, float w, float h,
                      bool ticked, bool isEnabled, bool isMouseOver, bool isDown) override;

    /** A label's font follows the label's height; a knob's value follows the knob. */
    juce::Font getLabelFont (juce::Label&) override;
    void drawLabel (juce::Graphics&, juce::Label&) override;
    juce::Font getPopupMenuFont() override;
    void drawKeyboardFocus (juce::Graphics&, zembra::PluginWidget&) override;

protected:
    /** Fills a button's shape and lines it with a light and a dark edge. */
    static void drawButtonShape (juce::Graphics&, const juce::Path& shape, juce::Colour colour,
                                 float height);

    /** The tick box and the text of a toggle, the text at a height of its own. */
    void drawTickBoxAndText (juce::Graphics&, juce::ToggleButton&, float fontHeight, float boxSize,
                             bool isMouseOver, bool isDown);

private:
    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (VorloLookAndFeel)
};
