// A lock on a file's name that holds between processes and inside one.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

#include <mutex>

namespace zembra
{

/** Holds off every other FileLock on the same file, of this process and of others, while it lives.

    juce::InterProcessLock doesn't serve on POSIX systems: its locks belong to the process, so that
    two instances, or two plug-in formats in one host, would not exclude each other. This one locks
    an open file description of its own. [any thread but audio]
*/
class FileLock final
{
public:
    /** Waits for the lock: inside the process until its turn comes, for other processes at most so
        long. The lock file is a hidden one beside `file`. A thread holds one at a time.
    */
    FileLock (const juce::File& file, int timeoutMilliseconds);
    ~FileLock();

    /** False if the time ran out or the lock file can't be made. */
    bool isHeld() const noexcept { return held; }

private:
    const std::scoped_lock<std::mutex> turn; ///< waiting threads of this process needn't poll
#if JUCE_WINDOWS
    juce::InterProcessLock lock;
#else
    int descriptor = -1;
#endif
    bool held = false;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (FileLock)
};

} // namespace zembra
