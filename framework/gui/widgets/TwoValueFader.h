// A slider with two thumbs, each bound to a parameter of its own.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/widgets/PluginWidget.h"
#include "framework/gui/widgets/ZembraSlider.h"

namespace zembra
{

/** The lower thumb moves the first parameter, the upper one the second. The thumb that a drag takes
    hold of decides which of them gets the gesture. A strip along the bottom holds the values as
    texts that can be edited.
*/
class TwoValueFader final : public PluginWidget,
                            private juce::Slider::Listener,
                            private juce::Label::Listener
{
public:
    /** @param style  TwoValueHorizontal or TwoValueVertical; both parameters have one range */
    TwoValueFader (PluginProcessor& processor, const juce::String& minParamId,
                   const juce::String& maxParamId, juce::Slider::SliderStyle style);
    ~TwoValueFader() override;

    ZembraSlider& getSlider() noexcept { return slider; }
    juce::Label& getLabel (int index) noexcept { return labels[static_cast<size_t> (index)]; }

    void updateFromParam() override;
    void resized() override;

private:
    void sliderValueChanged (juce::Slider*) override;
    void sliderDragStarted (juce::Slider*) override;
    void sliderDragEnded (juce::Slider*) override;
    void labelTextChanged (juce::Label*) override;
    void showTexts();

    ZembraSlider slider;
    std::array<juce::Label, 2> labels;
    Param* dragged = nullptr;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (TwoValueFader)
};

} // namespace zembra
