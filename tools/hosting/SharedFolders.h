// Keeps plug-ins that are tried out off the folders of the system.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

namespace hosting
{

/** A plug-in that root runs makes its shared folders on the system. For this process and those that it
    starts, this covers the place (JUCE's commonApplicationDataDirectory) with an empty one, unless a
    file that is needed lies there. Does nothing for other users, who can't write there anyway, and
    where the system doesn't allow it. Called before the process starts a thread. [Linux]
*/
void coverSharedFolders (const juce::Array<juce::File>& needed);

} // namespace hosting
