// Starting and ending of the thread.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/validate/BusyThread.h"

#include "tools/validate/Fault.h"
#include "tools/validate/Messages.h"

namespace validate
{

BusyThread::BusyThread (std::function<void()> task)
    : thread ([this, task = std::move (task)] { run (task); })
{
}

BusyThread::~BusyThread() { join(); }

void BusyThread::run (const std::function<void()>& task)
{
    try
    {
        for (; ! shouldEnd; ++numTurns)
            task();
    }
    catch (const Fault& caught)
    {
        fault = caught.reason;
    }

    hasEnded = true;
}

void BusyThread::join()
{
    shouldEnd = true;

    while (! hasEnded)
        runMessages (1);

    if (thread.joinable())
        thread.join();
}

void BusyThread::stop()
{
    join();
    expect (fault.isEmpty(), fault);
    expect (numTurns > 0, "a thread came to nothing");
}

} // namespace validate
