// Reading of chunks and MIDI files.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/SmallFile.h"

#include "tools/render/Failure.h"

#include <filesystem>

namespace render
{

juce::File toFile (const std::string& path)
{
    return juce::File::getCurrentWorkingDirectory().getChildFile (juce::String (path));
}

void requireRegularFile (const std::string& path)
{
    std::error_code ignored;
    const auto status = std::filesystem::status (path, ignored);

    if (! std::filesystem::exists (status))
        throw Failure ("there is no file " + inQuotes (path));

    if (! std::filesystem::is_regular_file (status))
        throw Failure (inQuotes (path) + " is no regular file");
}

juce::MemoryBlock readSmallFile (const std::string& path)
{
    constexpr juce::int64 largest = 16 * 1024 * 1024;
    requireRegularFile (path);
    const auto file = toFile (path);

    if (file.getSize() > largest)
        throw Failure (inQuotes (path) + " is larger than 16 MB");

    juce::MemoryBlock bytes;

    if (! file.loadFileAsData (bytes))
        throw Failure ("can't read " + inQuotes (path));

    return bytes;
}

} // namespace render
