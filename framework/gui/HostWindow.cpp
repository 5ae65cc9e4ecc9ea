// The host's window where the system's own answers are right.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/HostWindow.h"

namespace zembra
{

bool isHostInForeground() { return juce::Process::isForegroundProcess(); }

juce::Point<float> getWindowPosition (juce::ComponentPeer& peer)
{
    return peer.localToGlobal (juce::Point<float>());
}

bool passKeyToHost (juce::Component&, const juce::KeyPress&) { return false; }

} // namespace zembra
