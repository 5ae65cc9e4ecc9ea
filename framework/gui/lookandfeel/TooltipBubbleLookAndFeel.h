// The look of the bubble that shows a widget's value.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/lookandfeel/ZembraLookAndFeel.h"

namespace zembra
{

/** Draws the bubble as a plain rounded box with a small tip. */
class TooltipBubbleLookAndFeel final : public ZembraLookAndFeel
{
public:
    TooltipBubbleLookAndFeel() = default;

    void drawBubble (juce::Graphics&, juce::BubbleComponent&, const juce::Point<float>& tip,
                     const juce::Rectangle<float>& body) override;

private:
    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (TooltipBubbleLookAndFeel)
};

} // namespace zembra
