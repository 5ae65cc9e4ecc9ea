// How much memory this process has in use.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace soak
{

/** The bytes that the program has allocated and not yet freed; 0 where that can't be known. */
std::int64_t getHeapInUse() noexcept;

} // namespace soak
