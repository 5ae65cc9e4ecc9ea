// A plain value that one thread may write while another reads it.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>

namespace zembra
{

/** A number handed from thread to thread with no order promised: a relaxed atomic, which compiles to
    the loads and stores of a plain field and is defined behaviour. [any thread]
*/
template <typename Value>
class Relaxed
{
public:
    Relaxed (Value initial = {}) noexcept : value (initial) {} // NOLINT(*-explicit-*)

    operator Value() const noexcept { return value.load (std::memory_order_relaxed); }
    Value get() const noexcept { return *this; }

    Relaxed& operator= (Value newValue) noexcept
    {
        value.store (newValue, std::memory_order_relaxed);
        return *this;
    }

    Relaxed (const Relaxed&) = delete;
    Relaxed& operator= (const Relaxed&) = delete;

private:
    std::atomic<Value> value;
};

} // namespace zembra
