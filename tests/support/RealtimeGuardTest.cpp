// The guard of the audio thread sees what it is there to see.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/RealtimeGuard.h"

#include <gtest/gtest.h>
#include <juce_events/juce_events.h>

#include <mutex>
#include <thread>

namespace
{

/** Keeps the compiler from leaving out an allocation that nobody uses. */
void keep (const void* memory) { asm volatile("" : : "g"(memory) : "memory"); }

TEST (RealtimeGuardTest, SeesAllocationsLocksAndSystemCalls)
{
    if (! RealtimeGuard::isAvailable())
        GTEST_SKIP() << "the sanitizers stand in front of the same functions";

    std::mutex mutex;
    RealtimeGuard::Counts quiet, memory, text, lock, message;

    {
        const RealtimeGuard guard;
        quiet = guard.getCounts();
    }

    {
        const RealtimeGuard guard;
        const auto block = std::make_unique<char[]> (100);
        keep (block.get());
        memory = guard.getCounts();
    }

    {
        const RealtimeGuard guard;
        const juce::String number (1.5);
        text = guard.getCounts();
    }

    {
        const RealtimeGuard guard;
        const std::scoped_lock held (mutex);
        lock = guard.getCounts();
    }

    {
        struct Nobody final : juce::AsyncUpdater
        {
            void handleAsyncUpdate() override {}
        } nobody;

        const RealtimeGuard guard;
        nobody.triggerAsyncUpdate();
        message = guard.getCounts();
        nobody.cancelPendingUpdate();
    }

    EXPECT_EQ (quiet.allocations + quiet.locks + quiet.systemCalls, 0);
    EXPECT_EQ (memory.allocations, 1);
    EXPECT_GE (text.allocations, 1);
    EXPECT_EQ (lock.locks, 1);
    EXPECT_EQ (lock.allocations, 0);
    EXPECT_GE (message.locks, 1) << "why the audio thread wakes nobody";
    EXPECT_GE (message.systemCalls, 1);
}

TEST (RealtimeGuardTest, LooksAtItsOwnThreadOnly)
{
    std::atomic<bool> go{ false }, done{ false };
    RealtimeGuard::Counts counts;

    std::thread other (
        [&]
        {
            while (! go)
                std::this_thread::yield();

            const auto block = std::make_unique<char[]> (100);
            keep (block.get());
            done = true;
        });

    {
        const RealtimeGuard guard;
        go = true;

        while (! done)
            continue;

        counts = guard.getCounts();
    }

    other.join();
    EXPECT_EQ (counts.allocations, 0);
}

} // namespace
