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
    setEditable (true);
    setWantsKeyboardFocus (false);

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
    if (e.eventComponent != this || ! e.mouseWasDraggedSinceMouseDown())
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
    if (e.eventComponent != this)
        return;

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

    // Later, since it takes away the editor that this event came to.
    juce::MessageManager::callAsync (
        [box = juce::Component::SafePointer<SliderTextBox> (this)]
        {
            if (box == nullptr)
                return;

            box->hideEditor (true);
            auto& owner = box->slider;

            if (owner.isEnabled() && owner.isDoubleClickReturnEnabled())
            {
                const juce::Slider::ScopedDragNotification gesture (owner);
                owner.setValue (owner.getDoubleClickReturnValue(), juce::sendNotificationSync);
            }
        });
}

void SliderTextBox::enablementChanged()
{
    // Becoming editable has made it a stop of the tab key, which only the slider should be.
    Label::enablementChanged();
    setWantsKeyboardFocus (false);
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

void SliderTextBox::editorShown (juce::TextEditor* textEditor)
{
    // The number alone: its unit stays, and the box may be small.
    textEditor->setText (getText().upToFirstOccurrenceOf (" ", false, false), false);
    textEditor->selectAll();
    Label::editorShown (textEditor);
}

void SliderTextBox::editorAboutToBeHidden (juce::TextEditor* textEditor)
{
    Label::editorAboutToBeHidden (textEditor);

    // The keyboard goes on with the slider, so that tab leads to its neighbour.
    if (textEditor->hasKeyboardFocus (true))
        juce::MessageManager::callAsync (
            [box = juce::Component::SafePointer<SliderTextBox> (this)]
            {
                if (box != nullptr && ! box->isBeingEdited())
                    box->slider.grabKeyboardFocus();
            });
}

std::unique_ptr<juce::AccessibilityHandler> SliderTextBox::createAccessibilityHandler()
{
    return createIgnoredAccessibilityHandler (*this);
}

} // namespace zembra
