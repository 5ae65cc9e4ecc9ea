// Asking the file system for a file's stamp.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/FileStamp.h"

#include <chrono>

#if ! JUCE_WINDOWS
#include <sys/stat.h>
#endif

namespace zembra
{

std::filesystem::path FileStamp::toPath (const juce::File& file)
{
    const auto& text = file.getFullPathName();
    return { std::u8string (text.toRawUTF8(), text.toRawUTF8() + text.getNumBytesAsUTF8()) };
}

#if JUCE_WINDOWS

std::optional<FileStamp> FileStamp::of (const juce::File& file)
{
    std::error_code error;
    const auto path = toPath (file);

    if (! std::filesystem::is_regular_file (path, error))
        return {};

    FileStamp stamp;
    stamp.size = std::filesystem::file_size (path, error);
    const auto time = std::filesystem::last_write_time (path, error).time_since_epoch();
    stamp.modified = std::chrono::duration_cast<std::chrono::nanoseconds> (time).count();
    return error ? std::nullopt : std::optional (stamp);
}

#else

namespace
{

juce::int64 toNanoseconds (const timespec& time)
{
    return static_cast<juce::int64> (time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

} // namespace

std::optional<FileStamp> FileStamp::of (const juce::File& file)
{
    struct stat info;

    if (file == juce::File() || ::stat (file.getFullPathName().toRawUTF8(), &info) != 0
        || ! S_ISREG (info.st_mode))
        return {};

#if JUCE_MAC
    const auto &modifiedTime = info.st_mtimespec, &changedTime = info.st_ctimespec;
#else
    const auto &modifiedTime = info.st_mtim, &changedTime = info.st_ctim;
#endif

    return FileStamp{ static_cast<juce::uint64> (info.st_size), toNanoseconds (modifiedTime),
                      toNanoseconds (changedTime), static_cast<juce::uint64> (info.st_ino) };
}

#endif

bool FileStamp::isSettled() const
{
    constexpr juce::int64 coarsestClock = 2'000'000'000;
    const auto now = juce::Time::currentTimeMillis() * 1'000'000;
    return std::max (modified, changed) < now - coarsestClock;
}

} // namespace zembra
