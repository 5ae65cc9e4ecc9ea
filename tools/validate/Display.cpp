// The question to the desktop.
// SPDX-License-Identifier: GPL-3.0-or-later
#if defined(__linux__)
#define JUCE_GUI_BASICS_INCLUDE_XHEADERS 1
#endif
#include "tools/validate/Display.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace validate
{

bool hasDisplay()
{
    static const auto isThere = []
    {
        if (juce::Desktop::getInstance().getDisplays().displays.isEmpty())
            return false;

#if JUCE_LINUX
        juce::X11Symbols::getInstance()->xSetErrorHandler ([] (::Display*, ::XErrorEvent*)
                                                           { return 0; });
#endif
        return true;
    }();
    return isThere;
}

} // namespace validate
