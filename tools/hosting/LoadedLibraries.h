// Which shared libraries this process has loaded.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

namespace hosting
{

/** Whether a shared library inside a folder is loaded; always true where that can't be known. */
bool isLibraryLoadedFrom (const juce::File& folder);

} // namespace hosting
