// A desktop of one display that isn't there.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

/** Pretends, for as long as it lives, that the desktop is one display of this size. */
class FakeDisplay final
{
public:
    explicit FakeDisplay (juce::Rectangle<int> area, double scale = 1.0)
        : displays (const_cast<juce::Displays&> (juce::Desktop::getInstance().getDisplays())),
          real (displays.displays)
    {
        juce::Displays::Display display;
        display.isMain = true;
        display.totalArea = display.userArea = area;
        display.scale = scale;
        display.dpi = 96.0;
        displays.displays.clear();
        displays.displays.add (display);
    }

    ~FakeDisplay() { displays.displays = real; }

private:
    juce::Displays& displays;
    const juce::Array<juce::Displays::Display> real;

    JUCE_DECLARE_NON_COPYABLE (FakeDisplay)
};
