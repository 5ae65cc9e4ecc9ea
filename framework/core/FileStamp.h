// What tells one version of a file on disk from the next.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

#include <filesystem>
#include <optional>

namespace zembra
{

/** Size, times and identity of a regular file. [any thread but audio] */
struct FileStamp
{
    juce::uint64 size = 0;
    juce::int64 modified = 0; ///< nanoseconds since the epoch
    juce::int64 changed = 0;  ///< of the directory entry, where the system knows it; same unit
    juce::uint64 identity = 0;

    /** Nothing if the path is empty or relative, or names no regular file. Links are followed. */
    static std::optional<FileStamp> of (const juce::File& file);

    /** True if the file was left alone for so long that a further write would show in its times,
        on file systems with coarse clocks too.
    */
    bool isSettled() const;

    bool operator== (const FileStamp&) const = default;

    /** The path for the standard library. */
    static std::filesystem::path toPath (const juce::File& file);
};

} // namespace zembra
