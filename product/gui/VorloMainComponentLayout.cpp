// The geometry of the main panel.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/gui/VorloMainComponent.h"

void VorloMainComponent::resized()
{
    const auto knobSize = partOf (getHeight(), 0.41f);
    const auto row = partOf (getHeight(), 0.1f);
    const auto knobY = partOf (getHeight(), 0.27f) - knobSize / 2;
    const auto gap = partOf (getWidth(), 0.022f);

    layOutChain (knobSize, gap, knobY);
    layOutMix (row, knobY);
    layOutModulation (gap, row);
}

void VorloMainComponent::layOutChain (int knobSize, int gap, int knobY)
{
    const auto labelHeight = partOf (knobSize, 0.25f);
    juce::Rectangle<int> knob (gap, knobY, knobSize, knobSize);

    for (auto* target : { &drive, &crush, &downsamp })
    {
        target->knob->setBounds (knob);
        target->label->setBounds (knob.withTop (knob.getBottom() - labelHeight));
        knob.translate (gap + knobSize, 0);
    }

    filterPanel.setBounds (downsamp.knob->getRight() + gap, knobY, partOf (getWidth(), 0.26f),
                           knobSize);
}

void VorloMainComponent::layOutMix (int row, int knobY)
{
    const auto width = partOf (getWidth(), 0.1f);
    const auto dryX = partOf (getWidth(), 0.77f);
    const auto wetX = dryX + partOf (width, 1.07f);
    const auto y = row + knobY;
    const auto height = getHeight() - juce::roundToInt (2.0f * static_cast<float> (knobY)) - row;
    dry.fader->setBounds (dryX, y, width, height);
    wet.fader->setBounds (wetX, y, width, height);

    for (auto* channel : { &dry, &wet })
        channel->toggle->setBounds (
            channel->fader->getBounds().withHeight (row).translated (partOf (row, 0.5f), -row));

    const auto link = partOf (row, 0.7f);
    const auto plateHeight = height - partOf (link, 1.3f);
    leftPanel.setBounds (dryX, y, partOf (width, 0.25f), plateHeight);
    middlePanel.setBounds (dryX + partOf (width, 0.75f), y, partOf (width, 0.6f), plateHeight);
    rightPanel.setBounds (wetX + partOf (width, 0.75f), y, partOf (width, 0.25f), plateHeight);

    // Centred in the gap between the faders.
    const auto dryRight = width + dryX;
    const auto linkX = juce::roundToInt (0.5f * static_cast<float> (wetX - link - dryRight)
                                         + static_cast<float> (dryRight));
    linkToggle->setBounds (linkX, y + height - partOf (link, 2.8f), link, link);
}

void VorloMainComponent::layOutModulation (int gap, int row)
{
    const auto height = partOf (getHeight(), 0.3f);
    const auto y = partOf (getHeight(), 0.79f) - height / 2;
    lfoPanel.setBounds (gap, y, partOf (getWidth(), 0.27f), height);
    lfoPanel.resized(); // parts of it follow the editor, whose size may have changed alone

    // The last depth knob stands exactly below the knob that it acts on.
    depthPanel.setBounds (0, y, partOf (height, 4.55f), height);
    const auto target =
        filterPanel.getX() + filterPanel.getHipassResKnob().getBounds().getCentreX();
    const auto last = depthPanel.getFilterResDepthKnob().getBounds().getCentreX();
    depthPanel.setTopLeftPosition (target - last, y);

    const auto titleHeight = partOf (row, 0.8f);
    modulationsLabel->setBounds (depthPanel.getX(), partOf (getHeight(), 0.58f) - titleHeight / 2,
                                 partOf (getWidth(), 0.2f), titleHeight);
}
