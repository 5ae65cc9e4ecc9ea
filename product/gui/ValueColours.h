// The colours of a knob or fader as its parameter and its modulation make them.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

/** Fainter while the slider is disabled; the value in another colour while its parameter is frozen.
*/
struct ValueColours
{
    explicit ValueColours (const juce::Slider& slider);

    float modDepth = 0.0f; ///< 0 to 1, 0 for a slider outside a ControlledKnob
    juce::Colour track;
    juce::Colour value;     ///< of the arc or bar up to the value
    juce::Colour modulated; ///< of the stretch that the modulation pulls
    juce::Colour pointer;   ///< of the disc at the value
    juce::Colour cap;       ///< under that disc
};
