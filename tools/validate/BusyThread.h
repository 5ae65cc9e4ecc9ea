// A thread that does something again and again while a check does something else.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

#include <atomic>
#include <functional>
#include <thread>

namespace validate
{

/** Starts at once. A Fault ends the thread and waits for stop(). */
class BusyThread final
{
public:
    explicit BusyThread (std::function<void()> task);
    ~BusyThread();

    /** Ends the thread, running messages meanwhile, since it may wait for the message thread, and
        passes its Fault on. [message thread]
    */
    void stop();

    /** How often the task has been done. [any thread] */
    int getNumTurns() const noexcept { return numTurns; }

private:
    void run (const std::function<void()>& task);
    void join();

    std::atomic<bool> shouldEnd{ false }, hasEnded{ false };
    std::atomic<int> numTurns{ 0 };
    juce::String fault; ///< belongs to the thread until it has ended
    std::thread thread;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (BusyThread)
};

} // namespace validate
