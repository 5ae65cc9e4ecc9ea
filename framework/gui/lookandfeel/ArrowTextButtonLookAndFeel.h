// The look of text buttons with an arrow, which step or open something.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/lookandfeel/ZembraLookAndFeel.h"

namespace zembra
{

/** Draws the text, and right of it an arrow that points down. */
class ArrowTextButtonLookAndFeel final : public ZembraLookAndFeel
{
public:
    ArrowTextButtonLookAndFeel() = default;

    void drawButtonBackground (juce::Graphics&, juce::Button&, const juce::Colour&, bool,
                               bool) override
    {
    }

    void drawButtonText (juce::Graphics&, juce::TextButton&, bool isMouseOver,
                         bool isDown) override;

private:
    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ArrowTextButtonLookAndFeel)
};

} // namespace zembra
