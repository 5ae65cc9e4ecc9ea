// The C library's allocator with a counter before it.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/AllocationCount.h"

#include <cstdlib>

#if defined(__GLIBC__) && ! defined(__SANITIZE_ADDRESS__) && ! defined(__SANITIZE_THREAD__)

namespace
{
thread_local int numAllocations = 0;
}

extern "C"
{
    void* __libc_malloc (size_t);
    void* __libc_calloc (size_t, size_t);
    void* __libc_realloc (void*, size_t);

    void* malloc (size_t size) // NOLINT
    {
        ++numAllocations;
        return __libc_malloc (size);
    }

    void* calloc (size_t count, size_t size) // NOLINT
    {
        ++numAllocations;
        return __libc_calloc (count, size);
    }

    void* realloc (void* old, size_t size) // NOLINT
    {
        ++numAllocations;
        return __libc_realloc (old, size);
    }
}

int getNumAllocations() noexcept { return numAllocations; }

#else

int getNumAllocations() noexcept { return -1; }

#endif
