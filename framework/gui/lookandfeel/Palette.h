// The framework's colours: one table for all of its look-and-feel classes, one for the flat ones.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

#include <initializer_list>

namespace zembra
{

/** One row of a colour table. */
struct ColourEntry
{
    int colourId;
    juce::Colour colour;
};

/** Gives a look and feel all colours of a table. */
inline void applyColours (juce::LookAndFeel& lookAndFeel, std::initializer_list<ColourEntry> table)
{
    for (const auto& [colourId, colour] : table)
        lookAndFeel.setColour (colourId, colour);
}

/** The colours that every look and feel of the framework starts from. */
void applyBasePalette (juce::LookAndFeel& lookAndFeel);

/** What the flat look and feel changes of them. */
void applyFlatPalette (juce::LookAndFeel& lookAndFeel);

} // namespace zembra
