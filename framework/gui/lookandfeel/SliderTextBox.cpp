// Mouse events of the text of a slider's value.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/SliderTextBox.h"

namespace zembra
{

SliderTextBox::SliderTextBox (juce::Slider& sliderToUse) : slider (sliderToUse)
{
    setJustificationType (juce::Justification::centred);
    setKeyboardType (juce::TextInputTarget::decimalKeyboard);
    setBorderSize (juce::BorderSize<int> (0));

    const auto textColour = slider.findColour (juce::Slider::textBoxTextColourId);
    setColour (textColourId, textColour);
    setColour (backgroundColourId, slider.findColour (juce::Slider::textBoxBackgroundColourId));
    setColour (outlineColourId, slider.findColour (juce::Slider::textBoxOutlineColourId));
    setColour (juce::TextEditor::textColourId, textColour);
    setColour (juce::TextEditor::highlightColourId,
               slider.findColour (juce::Slider::textBoxHighlightColourId));
}

void SliderTextBox::mouseDrag (const juce::MouseEvent& e)
{
    if (! e.mouseWasDraggedSinceMouseDown())
        return;

    const auto event = e.getEventRelativeTo (&slider);

    if (! isDraggingSlider)
    {
        // The slider takes hold where the button went down.
        isDraggingSlider = true;
        slider.mouseDown (event.withNewPosition (event.mouseDownPosition));
    }

    slider.mouseDrag (event);
}

void SliderTextBox::mouseUp (const juce::MouseEvent& e)
{
    if (isDraggingSlider)
        slider.mouseUp (e.getEventRelativeTo (&slider));
    else
        Label::mouseUp (e);

    isDraggingSlider = false;
}

void SliderTextBox::mouseDoubleClick (const juce::MouseEvent& e)
{
    // The first of the two clicks has opened the editor, and the second has landed in it.
    const auto age = juce::Time::getMillisecondCounter() - editorShownAt;

    if (isBeingEdited() && age > static_cast<juce::uint32> (2 * e.getDoubleClickTimeout()))
        return;

    hideEditor (true);
    slider.mouseDoubleClick (e.getEventRelativeTo (&slider));
}

juce::TextEditor* SliderTextBox::createEditorComponent()
{
    auto* const textEditor = Label::createEditorComponent();
    textEditor->setJustification (juce::Justification::centred);
    textEditor->setIndents (0, 0);
    textEditor->setBorder (juce::BorderSize<int> (0));
    textEditor->setSelectAllWhenFocused (true);
    textEditor->addMouseListener (this, false);
    editorShownAt = juce::Time::getMillisecondCounter();
    return textEditor;
}

std::unique_ptr<juce::AccessibilityHandler> SliderTextBox::createAccessibilityHandler()
{
    return createIgnoredAccessibilityHandler (*this);
}

} // namespace zembra
