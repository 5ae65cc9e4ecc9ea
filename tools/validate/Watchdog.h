// Ends the process when a check hangs.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

namespace validate
{

/** While it lives, a thread counts the time; when too much of it has gone by, it prints a line and ends
    the process with the code 1, since nothing else helps against a deadlock.
*/
class Watchdog final
{
public:
    explicit Watchdog (int seconds);
    ~Watchdog();

    Watchdog (const Watchdog&) = delete;
    Watchdog& operator= (const Watchdog&) = delete;

private:
    void watch (int seconds);

    std::mutex mutex;
    std::condition_variable ending;
    bool hasEnded = false;
    std::thread thread;
};

} // namespace validate
