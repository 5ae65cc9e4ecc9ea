// Looking up and filling the memory of read files.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/presets/PresetFileCache.h"

#include "framework/core/XmlReader.h"

namespace zembra
{

PresetFileCache& PresetFileCache::get()
{
    static PresetFileCache cache;
    return cache;
}

bool PresetFileCache::parses (const juce::File& file)
{
    constexpr size_t maxEntries = 50000;
    const auto stamp = FileStamp::of (file);

    if (! stamp.has_value())
        return false;

    const auto path = file.getFullPathName().toStdString();

    {
        const std::scoped_lock lock (mutex);

        if (const auto known = entries.find (path);
            known != entries.end() && known->second.stamp == *stamp)
            return known->second.parses;
    }

    const auto result = XmlReader::parse (file) != nullptr;

    if (stamp->isSettled() && FileStamp::of (file) == stamp)
    {
        const std::scoped_lock lock (mutex);

        if (entries.size() >= maxEntries)
            entries.clear();

        entries.insert_or_assign (path, Entry{ *stamp, result });
    }

    return result;
}

void PresetFileCache::clear()
{
    const std::scoped_lock lock (mutex);
    entries.clear();
}

} // namespace zembra
