// The slider inside a fader: shows a parameter's own value texts and moves by keys.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/Param.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

/** A slider that takes its texts from a parameter.

    While ctrl or cmd is held a drag is fine: that is juce::Slider's velocity mode. The arrow keys
    move by one step, the page keys by ten; holding a key down is one gesture, like a drag. Return
    opens the text box.
*/
class ZembraSlider : public juce::Slider
{
public:
    ZembraSlider() = default;

    /** The parameter whose value names are shown; may be null. */
    void setParam (const Param* newParam) noexcept { param = newParam; }

    /** Help for the two thumbs of two- and three-value styles. */
    void setThumbTooltips (const juce::String& forMin, const juce::String& forMax);

    /** The thumb under the mouse: 0 none, 1 the lower, 2 the upper one. */
    int getHoveredThumb() const noexcept { return hoveredThumb; }

    /** Ends the gesture of a key that is still held down. */
    void endKeyDrag() { keyDrag.reset(); }

    juce::String getTextFromValue (double value) override;
    double getValueFromText (const juce::String& text) override;
    void mouseMove (const juce::MouseEvent&) override;
    bool keyPressed (const juce::KeyPress&) override;
    bool keyStateChanged (bool isKeyDown) override;
    void focusLost (FocusChangeType) override;

private:
    int findNearestThumb (juce::Point<float> position);

    const Param* param = nullptr;
    int hoveredThumb = 0;
    juce::String minThumbTooltip, maxThumbTooltip;
    std::unique_ptr<ScopedDragNotification> keyDrag;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ZembraSlider)
};

} // namespace zembra
