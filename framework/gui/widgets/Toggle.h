// A button bound to a parameter that is read as a switch.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/widgets/PluginWidget.h"

namespace zembra
{

/** Each click is one undo step and one host gesture. The parameter counts as on from 0.5 up; an
    inverted toggle is lit while the parameter is at or below 0.5, as a bypass switch is.
*/
class Toggle final : public PluginWidget, private juce::Button::Listener
{
public:
    /** A FilledPathButton with this path; not inverted. */
    Toggle (PluginProcessor& processor, const juce::String& paramId, const juce::Path& path);

    /** Around a made button; inverted. */
    Toggle (PluginProcessor& processor, const juce::String& paramId,
            std::unique_ptr<juce::Button> button);
    ~Toggle() override;

    juce::Button& getButton() const noexcept { return *button; }

    void setInverted (bool shouldBeInverted);
    bool isInverted() const noexcept { return inverted; }

    /** Without it the button is momentary: a click sends on, then off. */
    void setClickToggles (bool shouldToggle);

    /** Help for the two states; the click that leads to a state brings its text. An empty text
        leaves the tooltip as it is.
    */
    void setStateTooltips (const juce::String& whenOff, const juce::String& whenOn);

    /** Also the button's tooltip, since the mouse is over the button. */
    void setTooltip (const juce::String& newTooltip) override;

    void updateFromParam() override;
    void resized() override;
    void colourChanged() override;

private:
    void setUp();
    void buttonClicked (juce::Button*) override;

    std::unique_ptr<juce::Button> button;
    bool clickToggles = true;
    bool inverted = false;
    juce::String tooltipOff, tooltipOn;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (Toggle)
};

} // namespace zembra
