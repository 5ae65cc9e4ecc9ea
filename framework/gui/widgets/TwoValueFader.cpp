// The two roads of a slider with two thumbs.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/TwoValueFader.h"

namespace zembra
{

namespace
{

constexpr float labelShareOfHeight = 0.1f;

} // namespace

TwoValueFader::TwoValueFader (PluginProcessor& processorToUse, const juce::String& minParamId,
                              const juce::String& maxParamId, juce::Slider::SliderStyle style)
    : PluginWidget (processorToUse, minParamId)
{
    auto* const upper = processor.getParamSet().getParam (maxParamId);
    jassert (upper != nullptr);
    params.add (upper);
    const auto& lower = getParam (0);
    slider.setParam (&lower);
    slider.setSliderStyle (style);
    slider.setName (minParamId + "Slider");
    slider.setTitle (lower.getName());
    slider.setTextBoxStyle (juce::Slider::NoTextBox, false, 0, 0);
    slider.setTextValueSuffix (lower.getLabel());
    slider.setRange (lower.getMinValue(), lower.getMaxValue(), lower.getStep());
    slider.setSkewFactor (lower.getSkew(), false);
    slider.setThumbTooltips (lower.getName(), upper->getName());
    addAndMakeVisible (slider);
    slider.addMouseListener (this, true);

    for (auto& label : labels)
    {
        label.setEditable (true);
        label.addListener (this);
        addAndMakeVisible (label);
    }

    updateFromParam();
    slider.addListener (this);

    for (auto* param : params)
        listenTo (*param);
}

TwoValueFader::~TwoValueFader()
{
    if (dragged != nullptr)
        endGesture (*dragged);

    stopListening();
    slider.removeListener (this);

    for (auto& label : labels)
        label.removeListener (this);
}

void TwoValueFader::updateFromParam()
{
    slider.setMinAndMaxValues (getParam (0).getValue(), getParam (1).getValue(),
                               juce::dontSendNotification);
    showTexts();
}

void TwoValueFader::showTexts()
{
    for (int i = 0; i < 2; ++i)
        getLabel (i).setText (slider.getTextFromValue (getParam (i).getValue()),
                              juce::dontSendNotification);
}

void TwoValueFader::resized()
{
    auto area = getLocalBounds();
    auto strip = area.removeFromBottom (
        juce::roundToInt (labelShareOfHeight * static_cast<float> (getHeight())));
    slider.setBounds (area);
    labels[0].setBounds (strip.removeFromLeft (strip.getWidth() / 2));
    labels[1].setBounds (strip);
}

void TwoValueFader::sliderValueChanged (juce::Slider*)
{
    getParam (0).setValue (slider.getMinValue(), sourceEditor, &getUndoManager());
    getParam (1).setValue (slider.getMaxValue(), sourceEditor, &getUndoManager());
    showTexts();
}

void TwoValueFader::sliderDragStarted (juce::Slider*)
{
    constexpr int upperThumb = 2;
    dragged = &getParam (slider.getThumbBeingDragged() == upperThumb ? 1 : 0);
    getUndoManager().beginNewTransaction();
    beginGesture (*dragged);
}

void TwoValueFader::sliderDragEnded (juce::Slider*)
{
    // Thumbs report their moves a moment later; the last one belongs into the gesture too.
    sliderValueChanged (&slider);

    if (auto* const param = std::exchange (dragged, nullptr))
        endGesture (*param);
}

void TwoValueFader::labelTextChanged (juce::Label* label)
{
    const auto index = label == &labels[0] ? 0 : 1;

    if (const auto value = getParam (index).getValueForText (label->getText()))
        editInOneStep (getParam (index), *value);

    updateFromParam();
}

} // namespace zembra
