// The tips.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/TipsComponent.h"

#include "framework/gui/lookandfeel/ColourIds.h"

namespace zembra
{

TipsComponent::TipsComponent()
{
    const juce::Colour transparentWhite{ 0x00ffffff };
    display.setColour (juce::TextEditor::outlineColourId, transparentWhite);
    display.setColour (displayTextOutlineColourId, transparentWhite);
    addAndMakeVisible (display);

    addTip (TRANS ("The interface is fully resizable (drag the bottom-right corner)"));
    addTip (
        TRANS ("If you need more precision while dragging a knob, press ctrl (win) or cmd (osx)"));
    addTip (TRANS ("Double-click a knob to reset it to its default factory value"));
    addTip (
        TRANS ("Right-click on the preset name to copy/paste the current state using the system "
               "clipboard"));
    addTip (TRANS ("If you want to lock a parameter so that it does not change when you load a "
                   "preset, check it in the 'freezer' which is accessible through the 'presets' "
                   "menu"));
    addTip (
        TRANS ("In the presets browser : right click on a preset to show a contextual menu with "
               "some options (rename, show, set as default...) renaming is only available for "
               "user's presets. Double-clicking on a user's preset name also turns on renaming. "
               "press enter to validate the new name or click anywhere to cancel."));
}

void TipsComponent::addTip (const juce::String& text)
{
    if (text.isEmpty())
        return;

    tips.add (text);
    juce::String all;

    for (const auto& tip : tips)
        all << juce::String::charToString (0x2022) << "  " << tip << "\n\n";

    display.setText (all);
}

} // namespace zembra
