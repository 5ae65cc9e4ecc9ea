// Reads files that fit in memory.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

#include <string>

namespace render
{

/** A path as the command line gives it, taken from the working folder. */
juce::File toFile (const std::string& path);

/** Tells a missing file, a folder and the like from one that holds the wrong thing.
    @throws Failure  if the path isn't that of a regular file
*/
void requireRegularFile (const std::string& path);

/** All bytes of a regular file of at most 16 MB.
    @throws Failure  if it is missing, something else, larger, or can't be read
*/
juce::MemoryBlock readSmallFile (const std::string& path);

} // namespace render
