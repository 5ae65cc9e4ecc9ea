// The modulation depth of a knob.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/gui/ControlledKnob.h"

void ControlledKnob::setModDepth (float newDepth)
{
    if (newDepth == modDepth)
        return;

    modDepth = newDepth;
    repaint();
}
