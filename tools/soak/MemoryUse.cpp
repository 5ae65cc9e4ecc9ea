// Asks the C library's allocator.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/soak/MemoryUse.h"

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace soak
{

std::int64_t getHeapInUse() noexcept
{
#if defined(__GLIBC__)
    const auto info = mallinfo2();
    return static_cast<std::int64_t> (info.uordblks + info.hblkhd);
#else
    return 0;
#endif
}

} // namespace soak
