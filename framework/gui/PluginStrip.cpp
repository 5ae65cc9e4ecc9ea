// Drawing of the plain strip.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/PluginStrip.h"

#include "framework/gui/lookandfeel/ColourIds.h"

namespace zembra
{

PluginStrip::PluginStrip (Edge edgeToUse) : edge (edgeToUse) { setOpaque (true); }

void PluginStrip::paint (juce::Graphics& g)
{
    g.fillAll (findColour (stripBackgroundColourId));
    const auto line = findColour (separatorColourId);

    if (line.isTransparent())
        return;

    g.setColour (line.withMultipliedAlpha (isEnabled() ? 1.0f : 0.5f));
    g.fillRect (0, edge == Edge::top ? getHeight() - 1 : 0, getWidth(), 1);
}

} // namespace zembra
