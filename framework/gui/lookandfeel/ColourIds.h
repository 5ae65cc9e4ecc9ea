// The colour roles that the framework adds to JUCE's, in one place.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zembra
{

/** Ids for `juce::LookAndFeel::setColour` and `juce::Component::setColour`. */
enum ColourIds : int
{
    // Knobs and faders.
    knobCapColourId = 0x0c098986,      ///< the disc under a pointer, and behind a tick
    knobTrackColourId = 0x0c098126,    ///< the ring or groove that the value runs in
    knobTrackOffColourId = 0x0c098127, ///< the disc of a switch that is off
    knobValueColourId = 0x0cdaa210,    ///< the part of the ring up to the value, and the pointer
    frozenColourId = 0x0cdaa211,  ///< takes the place of the value colour of a frozen parameter
    knobModColourId = 0x0cdaa212, ///< the stretch through which modulation pulls the value down

    // Switches and icons.
    toggleTextColourId = 0x01320103, ///< an icon that is on
    toggleOffColourId = 0x01320104,  ///< an icon that is off
    toggleBoxColourId = 0x01320105,  ///< the outline of a tick box

    // Panels, strips and windows.
    mainBackgroundColourId = 0x0c3298da,
    mainOutlineColourId = 0x0c329823,
    separatorColourId = 0x0c329824,
    stripBackgroundColourId = 0x0c3298db, ///< the strips above and below the main panel
    windowBackgroundColourId = 0x0c3298dc,
    accentColourId = 0x0cd19812,      ///< the product's own colour
    logoColourId = 0x0cd19813,        ///< the neutral part of a wordmark
    focusColourId = 0x0cd19814,       ///< the mark of the keyboard's focus
    freezerMarkColourId = 0x0ced29c2, ///< a frozen row in the freezer

    // Help texts.
    tooltipBackgroundColourId = 0x0c32aada,
    tooltipTextColourId = 0x0c32aade,
    displayTextOutlineColourId = 0x0cbdef31, ///< the frame of a read-only text view

    // Drop-down lists of buttons.
    dropDownTextColourId = 0x0ae0a910,
    dropDownBackgroundColourId = 0x0ae02310,

    // MIDI learning.
    midiLearnColourId = 0x0c32abd0,     ///< the veil over a control that can be learned
    midiLearnOpenColourId = 0x0c32abd1, ///< the same while its panel stands open
};

} // namespace zembra
