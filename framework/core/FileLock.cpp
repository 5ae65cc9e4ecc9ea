// Locking of an open file description, or of a named mutex.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/FileLock.h"

#if ! JUCE_WINDOWS
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace zembra
{

namespace
{

/** One for all files: there is one settings file, and what is done under the lock is short. */
std::mutex processMutex;

} // namespace

#if JUCE_WINDOWS

FileLock::FileLock (const juce::File& file, int timeoutMilliseconds)
    : turn (processMutex),
      lock (file.getFullPathName().replaceCharacters ("\\/:", "___"))
{
    held = lock.enter (timeoutMilliseconds);
}

FileLock::~FileLock()
{
    if (held)
        lock.exit();
}

#else

FileLock::FileLock (const juce::File& file, int timeoutMilliseconds) : turn (processMutex)
{
    const auto lockFile = file.getSiblingFile ("." + file.getFileName() + ".lock");
    descriptor =
        ::open (lockFile.getFullPathName().toRawUTF8(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);

    if (descriptor < 0)
        return;

    const auto end = juce::Time::getMillisecondCounterHiRes() + timeoutMilliseconds;

    while (! (held = ::flock (descriptor, LOCK_EX | LOCK_NB) == 0)
           && juce::Time::getMillisecondCounterHiRes() < end)
        juce::Thread::sleep (1);
}

FileLock::~FileLock()
{
    if (descriptor >= 0)
        ::close (descriptor);
}

#endif

} // namespace zembra
