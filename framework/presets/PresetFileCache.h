// What the process knows about preset files that it has read before.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/FileStamp.h"

#include <mutex>
#include <string>
#include <unordered_map>

namespace zembra
{

/** Remembers which files hold XML that XmlReader accepts, so that the scans of further instances
    need not parse each file again. What it answers is what a fresh parse would: an entry counts only
    while the file's stamp is the same, and only if the file had been left alone for a while when it
    was read. [any thread but audio]
*/
class PresetFileCache final
{
public:
    /** The one of this process. */
    static PresetFileCache& get();

    /** True if the file is a regular one that parses. */
    bool parses (const juce::File& file);

    /** Forgets everything, for tests and benchmarks. */
    void clear();

private:
    struct Entry
    {
        FileStamp stamp;
        bool parses = false;
    };

    PresetFileCache() = default;

    std::mutex mutex;
    std::unordered_map<std::string, Entry> entries;

    JUCE_DECLARE_NON_COPYABLE (PresetFileCache)
};

} // namespace zembra
