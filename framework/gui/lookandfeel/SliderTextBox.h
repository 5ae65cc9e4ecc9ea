// The text of a slider's value: a click edits it, everything else is the slider's.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

/** May stand in the middle of a knob, so it must not swallow what is meant for the knob: drags, the
    wheel and the double click that resets go to the slider.
*/
class SliderTextBox final : public juce::Label
{
public:
    explicit SliderTextBox (juce::Slider& slider);

    juce::String getTooltip() override { return slider.getTooltip(); }

    void mouseEnter (const juce::MouseEvent&) override { slider.repaint(); }
    void mouseExit (const juce::MouseEvent&) override { slider.repaint(); }
    void mouseDrag (const juce::MouseEvent&) override;
    void mouseUp (const juce::MouseEvent&) override;
    void mouseDoubleClick (const juce::MouseEvent&) override;
    void enablementChanged() override;
    juce::TextEditor* createEditorComponent() override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

protected:
    void editorShown (juce::TextEditor*) override;
    void editorAboutToBeHidden (juce::TextEditor*) override;

private:
    juce::Slider& slider;
    juce::uint32 editorShownAt = 0;
    bool isDraggingSlider = false;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (SliderTextBox)
};

} // namespace zembra
