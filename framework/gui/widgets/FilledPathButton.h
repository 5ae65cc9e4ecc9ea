// A button that is a filled path: an icon in the look's colours.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

class FilledPathButton final : public juce::Button
{
public:
    /** What the button asks of its look and feel. */
    class ZembraLookAndFeelMethods
    {
    public:
        virtual ~ZembraLookAndFeelMethods() = default;

        /** Draws the button's path, fitted into `area`, in the colours of the button's state. */
        virtual void drawFilledPathButton (juce::Graphics&, FilledPathButton&,
                                           juce::Rectangle<float> area, bool isMouseOver,
                                           bool isDown) = 0;
    };

    explicit FilledPathButton (const juce::String& name, const juce::Path& path = {});

    void setPath (const juce::Path& newPath);
    const juce::Path& getPath() const noexcept { return path; }

    /** Pixels between the button's edges and the path. */
    void setInsets (juce::BorderSize<int> newInsets);
    juce::BorderSize<int> getInsets() const noexcept { return insets; }

    /** The path scaled to fit `area`, centred, its proportions kept. */
    juce::Path getPathFittedTo (juce::Rectangle<float> area) const;

    void paintButton (juce::Graphics&, bool isMouseOver, bool isDown) override;

private:
    juce::Path path;
    juce::BorderSize<int> insets{ 0 };

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (FilledPathButton)
};

} // namespace zembra
