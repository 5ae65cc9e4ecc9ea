// The functions that stand in front of the C library's, and count.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/RealtimeGuard.h"

#if defined(__linux__) && ! defined(__SANITIZE_ADDRESS__) && ! defined(__SANITIZE_THREAD__)
#define VORLO_HAS_REALTIME_GUARD 1
#include <dlfcn.h>
#include <poll.h>
#include <pthread.h>
#include <time.h>
#include <unistd.h>

#include <cstddef>
#endif

namespace
{

thread_local bool isArmed = false;
thread_local RealtimeGuard::Counts counts;

} // namespace

RealtimeGuard::RealtimeGuard()
{
    counts = {};
    isArmed = true;
}

RealtimeGuard::~RealtimeGuard() { isArmed = false; }

RealtimeGuard::Counts RealtimeGuard::getCounts() const { return counts; }

#if VORLO_HAS_REALTIME_GUARD

bool RealtimeGuard::isAvailable() { return true; }

namespace
{

void count (int RealtimeGuard::Counts::*what)
{
    if (isArmed)
        ++(counts.*what);
}

/** The function that the one of this file hides. */
template <typename Function>
Function* findNext (Function* /*ours*/, const char* name)
{
    return reinterpret_cast<Function*> (dlsym (RTLD_NEXT, name));
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C"
{
    void* __libc_malloc (size_t);
    void* __libc_calloc (size_t, size_t);
    void* __libc_realloc (void*, size_t);
    void* __libc_memalign (size_t, size_t);
    void __libc_free (void*);
}
// NOLINTEND(bugprone-reserved-identifier)

#define VORLO_IN_FRONT extern "C" __attribute__ ((visibility ("default")))

VORLO_IN_FRONT void* malloc (size_t size) noexcept
{
    count (&RealtimeGuard::Counts::allocations);
    return __libc_malloc (size);
}

VORLO_IN_FRONT void* calloc (size_t number, size_t size) noexcept
{
    count (&RealtimeGuard::Counts::allocations);
    return __libc_calloc (number, size);
}

VORLO_IN_FRONT void* realloc (void* memory, size_t size) noexcept
{
    count (&RealtimeGuard::Counts::allocations);
    return __libc_realloc (memory, size);
}

VORLO_IN_FRONT void* aligned_alloc (size_t alignment, size_t size) noexcept
{
    count (&RealtimeGuard::Counts::allocations);
    return __libc_memalign (alignment, size);
}

VORLO_IN_FRONT void free (void* memory) noexcept
{
    // Releasing nothing is nothing.
    if (memory != nullptr)
        count (&RealtimeGuard::Counts::allocations);

    __libc_free (memory);
}

VORLO_IN_FRONT int pthread_mutex_lock (pthread_mutex_t* mutex) noexcept
{
    static const auto next = findNext (&pthread_mutex_lock, "pthread_mutex_lock");
    count (&RealtimeGuard::Counts::locks);
    return next (mutex);
}

VORLO_IN_FRONT int pthread_cond_wait (pthread_cond_t* condition, pthread_mutex_t* mutex)
{
    static const auto next = findNext (&pthread_cond_wait, "pthread_cond_wait");
    count (&RealtimeGuard::Counts::locks);
    return next (condition, mutex);
}

VORLO_IN_FRONT int pthread_cond_signal (pthread_cond_t* condition) noexcept
{
    static const auto next = findNext (&pthread_cond_signal, "pthread_cond_signal");
    count (&RealtimeGuard::Counts::systemCalls);
    return next (condition);
}

VORLO_IN_FRONT ssize_t write (int file, const void* data, size_t size)
{
    static const auto next = findNext (&write, "write");
    count (&RealtimeGuard::Counts::systemCalls);
    return next (file, data, size);
}

VORLO_IN_FRONT ssize_t read (int file, void* data, size_t size)
{
    static const auto next = findNext (&read, "read");
    count (&RealtimeGuard::Counts::systemCalls);
    return next (file, data, size);
}

VORLO_IN_FRONT int poll (pollfd* files, nfds_t number, int timeout)
{
    static const auto next = findNext (&poll, "poll");
    count (&RealtimeGuard::Counts::systemCalls);
    return next (files, number, timeout);
}

VORLO_IN_FRONT int nanosleep (const timespec* wanted, timespec* left)
{
    static const auto next = findNext (&nanosleep, "nanosleep");
    count (&RealtimeGuard::Counts::systemCalls);
    return next (wanted, left);
}

VORLO_IN_FRONT int sched_yield() noexcept
{
    static const auto next = findNext (&sched_yield, "sched_yield");
    count (&RealtimeGuard::Counts::systemCalls);
    return next();
}

#else

bool RealtimeGuard::isAvailable() { return false; }

#endif
