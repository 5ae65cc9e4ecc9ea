// A fader's set-up and the way of its edits to the parameter.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/Fader.h"

namespace zembra
{

namespace
{

/** Ranges reach a slider in the precision of a float. */
double toFloatPrecision (double value) { return static_cast<double> (static_cast<float> (value)); }

constexpr float sweepStart = 3.9444442f; // 226 degrees
constexpr float sweepEnd = 8.621926f;    // 494 degrees

} // namespace

Fader::Fader (PluginProcessor& processorToUse, const juce::String& paramId,
              juce::Slider::SliderStyle style, std::unique_ptr<ZembraSlider> sliderToUse)
    : PluginWidget (processorToUse, paramId),
      slider (sliderToUse != nullptr ? std::move (sliderToUse) : std::make_unique<ZembraSlider>())
{
    auto& param = getParam();
    slider->setParam (&param);
    slider->setSliderStyle (style);
    slider->setName (paramId + "Slider");
    slider->setTitle (param.getName());
    slider->setTextBoxStyle (juce::Slider::NoTextBox, false, 0, 0);
    slider->setPopupDisplayEnabled (true, false, nullptr);
    slider->setTextValueSuffix (param.getLabel());
    slider->setDoubleClickReturnValue (true, param.getDefaultValue());
    slider->setWantsKeyboardFocus (true);
    addAndMakeVisible (*slider);
    slider->addMouseListener (this, true);
    slider->setRange (toFloatPrecision (param.getMinValue()),
                      toFloatPrecision (param.getMaxValue()), toFloatPrecision (param.getStep()));
    slider->setSkewFactor (param.getSkew(), false);
    slider->addListener (this);
    listenTo (param);
}

Fader::~Fader()
{
    slider->endKeyDrag();

    if (isDragging)
        endGesture (getParam());

    stopListening();
    slider->removeListener (this);
}

void Fader::setupControl (juce::Slider::TextEntryBoxPosition textBoxPosition)
{
    slider->setTextBoxStyle (textBoxPosition, false, 0, 0);
    slider->setPopupDisplayEnabled (false, false, nullptr);
    showsValueBubble = false;
    slider->setRotaryParameters (sweepStart, sweepEnd, true);
}

void Fader::setTooltip (const juce::String& newTooltip)
{
    PluginWidget::setTooltip (newTooltip);
    slider->setTooltip (newTooltip);
}

void Fader::updateFromParam()
{
    slider->setValue (getParam().getValue(), juce::dontSendNotification);
}

void Fader::resized() { slider->setBounds (getLocalBounds()); }

void Fader::paramValueShown (Param*, double value)
{
    if (showsValueBubble)
        setTooltip (slider->getTextFromValue (value));
}

void Fader::sliderValueChanged (juce::Slider*)
{
    auto value = slider->getValue();

    // So that a knob near the centre of a symmetric range lands on exactly zero.
    if (std::abs (value) < 0.1 * slider->getInterval())
        value = 0.0;

    getParam().setValue (value, sourceEditor, &getUndoManager());
}

void Fader::sliderDragStarted (juce::Slider*)
{
    isDragging = true;
    // A preset may have replaced the default; a double click begins with a press.
    slider->setDoubleClickReturnValue (true, getParam().getDefaultValue());
    getUndoManager().beginNewTransaction();
    beginGesture (getParam());
}

void Fader::sliderDragEnded (juce::Slider*)
{
    isDragging = false;
    endGesture (getParam());
}

} // namespace zembra
