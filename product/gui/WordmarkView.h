// A name in two tones, fitted into its bounds.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "product/resources/art/VorloArt.h"

#include <juce_gui_basics/juce_gui_basics.h>

/** Takes no mouse clicks. */
class WordmarkView final : public juce::Component
{
public:
    WordmarkView (vorloArt::Wordmark wordmark, juce::RectanglePlacement placement);

    void paint (juce::Graphics&) override;

private:
    const vorloArt::Wordmark wordmark;
    const juce::RectanglePlacement placement;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (WordmarkView)
};
