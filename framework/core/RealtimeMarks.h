// Which threads are at this moment inside a call that must not wait.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

#include <array>
#include <atomic>

namespace zembra
{

/** Marks the thread that runs a call, for as long as the call lasts, so that what is called from there
    can tell that it must not wait. Asking JUCE for the message thread would not do: that takes a lock.
*/
class RealtimeMarks final
{
public:
    RealtimeMarks() = default;

    /** Marks the calling thread until it is destroyed. With all places taken it marks nothing, and
        the call is treated like any other. [any thread]
    */
    class Scope
    {
    public:
        explicit Scope (RealtimeMarks& marks) noexcept : place (marks.take()) {}

        ~Scope()
        {
            if (place != nullptr)
                place->store (nullptr, std::memory_order_release);
        }

        JUCE_DECLARE_NON_COPYABLE (Scope)

    private:
        std::atomic<juce::Thread::ThreadID>* const place;
    };

    /** True if the calling thread is inside a Scope. [any thread] */
    bool isMarked() const noexcept
    {
        const auto self = juce::Thread::getCurrentThreadId();

        for (const auto& thread : threads)
            if (thread.load (std::memory_order_relaxed) == self)
                return true;

        return false;
    }

private:
    std::atomic<juce::Thread::ThreadID>* take() noexcept
    {
        const auto self = juce::Thread::getCurrentThreadId();

        for (auto& thread : threads)
            if (juce::Thread::ThreadID none = nullptr; thread.compare_exchange_strong (
                    none, self, std::memory_order_acquire, std::memory_order_relaxed))
                return &thread;

        return nullptr;
    }

    std::array<std::atomic<juce::Thread::ThreadID>, 8> threads{};

    JUCE_DECLARE_NON_COPYABLE (RealtimeMarks)
};

} // namespace zembra
