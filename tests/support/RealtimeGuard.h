// Counts what a thread must not do while it makes sound: allocate, lock, call the system.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/** Counts, between its making and its end, the calls of its own thread to the functions that the test
    executable puts in front of the C library's: the memory functions, mutexes and conditions, and the
    system calls that JUCE's message posting, sleeping and files are made of. One a thread at a time.
*/
class RealtimeGuard final
{
public:
    struct Counts
    {
        int allocations = 0; ///< allocations and releases
        int locks = 0;       ///< mutexes taken, conditions waited for
        int systemCalls = 0;
    };

    RealtimeGuard();
    ~RealtimeGuard();
    RealtimeGuard (const RealtimeGuard&) = delete;
    RealtimeGuard& operator= (const RealtimeGuard&) = delete;

    /** False where there is nothing in front: under the sanitizers, which do the same themselves. */
    static bool isAvailable();

    /** What was counted so far. */
    Counts getCounts() const;
};
