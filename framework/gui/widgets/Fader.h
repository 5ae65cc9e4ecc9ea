// A slider or knob bound to a parameter.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/widgets/PluginWidget.h"
#include "framework/gui/widgets/ZembraSlider.h"

namespace zembra
{

/** One drag, wheel notch, double click or typed value is one undo step and one host gesture. */
class Fader : public PluginWidget, private juce::Slider::Listener
{
public:
    /** @param slider  the slider to use; null for a ZembraSlider */
    Fader (PluginProcessor& processor, const juce::String& paramId, juce::Slider::SliderStyle style,
           std::unique_ptr<ZembraSlider> slider = nullptr);
    ~Fader() override;

    /** What every panel does to its knobs and faders: an editable text box, no popup and no value
        bubble, and a rotary sweep from 226 to 494 degrees that stops at its ends.
    */
    void setupControl (juce::Slider::TextEntryBoxPosition textBoxPosition);

    ZembraSlider& getSlider() const noexcept { return *slider; }

    /** Also the slider's tooltip, since the mouse is over the slider. */
    void setTooltip (const juce::String& newTooltip) override;

    void updateFromParam() override;
    void resized() override;

protected:
    void paramValueShown (Param*, double value) override;

private:
    void sliderValueChanged (juce::Slider*) override;
    void sliderDragStarted (juce::Slider*) override;
    void sliderDragEnded (juce::Slider*) override;

    std::unique_ptr<ZembraSlider> slider;
    bool isDragging = false;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (Fader)
};

} // namespace zembra
