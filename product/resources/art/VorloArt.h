// The product's drawings: icons and wordmarks as vector paths.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_graphics/juce_graphics.h>

/** All paths are outlines to be filled. Their own units don't matter: whoever draws one fits it into
    its area. Icons of one family share their bounds, so that they come out equally bold.
*/
namespace vorloArt
{

/** A chain link, twice as wide as high. */
juce::Path makeLinkIcon();

/** A response that falls, or rises, past a small peak. */
juce::Path makeLowPassIcon();
juce::Path makeHighPassIcon();

/** One period of the waveform that a value of `lfoWaveform` stands for, 0 to 3. */
juce::Path makeWaveIcon (int waveform);

/** A name in two tones. All share one coordinate system. */
struct Wordmark
{
    juce::Path letters;
    juce::Path accent;
    juce::Rectangle<float> frame; ///< what is fitted into an area: the name and the air around it
};

/** The maker's name, behind its parasol. */
Wordmark makeMakerWordmark();

/** The product's name; its last letter is a knob. */
Wordmark makeProductWordmark();

} // namespace vorloArt
