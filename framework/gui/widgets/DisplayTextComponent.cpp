// Set-up of a text to read.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/DisplayTextComponent.h"

namespace zembra
{

namespace
{

constexpr float fontHeight = 14.0f;

} // namespace

DisplayTextComponent::DisplayTextComponent()
{
    view.setMultiLine (true);
    view.setReadOnly (true);
    view.setCaretVisible (false);
    view.setScrollbarsShown (true);
    view.setFont (juce::Font ("arial", fontHeight, juce::Font::plain));
    addAndMakeVisible (view);
}

void DisplayTextComponent::setText (const juce::String& text)
{
    view.setText (text, false);
    view.setCaretPosition (0);
}

void DisplayTextComponent::colourChanged()
{
    copyAllExplicitColoursTo (view);
    // From here, not from the view, which would keep the first colour it is given as its own.
    view.applyColourToAllText (findColour (juce::TextEditor::textColourId));
}

} // namespace zembra
