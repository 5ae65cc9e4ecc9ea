// Painting of a wordmark.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/gui/WordmarkView.h"

#include "framework/gui/lookandfeel/ColourIds.h"

WordmarkView::WordmarkView (vorloArt::Wordmark wordmarkToShow,
                            juce::RectanglePlacement placementToUse)
    : wordmark (std::move (wordmarkToShow)),
      placement (placementToUse)
{
    setInterceptsMouseClicks (false, false);
    setAccessible (false);
}

void WordmarkView::paint (juce::Graphics& g)
{
    const auto fit = placement.getTransformToFit (wordmark.frame, getLocalBounds().toFloat());
    g.setColour (findColour (zembra::logoColourId));
    g.fillPath (wordmark.letters, fit);
    g.setColour (findColour (zembra::accentColourId));
    g.fillPath (wordmark.accent, fit);
}
