// The product's colours.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

/** Sets the product's colours on a look and feel. */
void applyVorloPalette (juce::LookAndFeel& lookAndFeel);
