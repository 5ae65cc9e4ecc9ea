// Counts what a thread takes from the heap.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/** The number of allocations of this thread since it began, or -1 where they can't be counted: with
    sanitizers, which have their own allocator, and other C libraries than glibc.
*/
int getNumAllocations() noexcept;
