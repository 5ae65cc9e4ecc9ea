// The thread that counts the time.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/validate/Watchdog.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace validate
{

Watchdog::Watchdog (int seconds) : thread ([this, seconds] { watch (seconds); }) {}

Watchdog::~Watchdog()
{
    {
        const std::scoped_lock lock (mutex);
        hasEnded = true;
    }
    ending.notify_one();
    thread.join();
}

void Watchdog::watch (int seconds)
{
    std::unique_lock lock (mutex);

    if (ending.wait_for (lock, std::chrono::seconds (seconds), [this] { return hasEnded; }))
        return;

    std::printf ("FAIL: it hangs (not done after %d s)\n", seconds);
    std::fflush (stdout);
    std::_Exit (1);
}

} // namespace validate
