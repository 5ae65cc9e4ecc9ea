// What a plug-in has to know of the host's window around its own.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

/** True while the application that the plug-in runs in is the one the user works with, whichever of
    its windows has the focus. JUCE's own answer looks at JUCE's windows alone and is false inside a
    host until the editor is clicked. [message thread]
*/
bool isHostInForeground();

/** Where a native window stands on the screen, in its own units, asked afresh: a host may have moved
    the frame around it without a message. [message thread]
*/
juce::Point<float> getWindowPosition (juce::ComponentPeer& peer);

/** Hands a key that the editor doesn't want to the host's window around it, so that the space bar
    still starts the host's transport. False if the host gets keys by itself. [message thread]
*/
bool passKeyToHost (juce::Component& editor, const juce::KeyPress& key);

} // namespace zembra
