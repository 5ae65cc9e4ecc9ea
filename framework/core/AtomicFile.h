// Writing of files that are never half there.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

namespace zembra
{

/** Replaces the contents of a file in one step. */
struct AtomicFile
{
    /** Writes to a temporary file in the target's folder, flushes it to the disk and renames it over
        the target. Whatever goes wrong, the old contents stay whole. A link is followed, so that it
        stays a link. The folder must exist. Returns false if the file couldn't be written.
        [any thread but audio]
    */
    static bool write (const juce::File& target, const juce::String& text);
};

} // namespace zembra
