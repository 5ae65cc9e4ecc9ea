// The signals that end a render.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/Interrupt.h"

#include "tools/render/Failure.h"

#include <csignal>

namespace render
{

namespace
{

volatile std::sig_atomic_t caughtSignal = 0;

extern "C" void noteSignal (int signal)
{
    caughtSignal = signal;
    std::signal (signal, SIG_DFL);
}

} // namespace

void catchInterrupts()
{
    std::signal (SIGINT, noteSignal);
    std::signal (SIGTERM, noteSignal);
#ifdef SIGHUP
    // Under nohup it is ignored, and stays so.
    if (std::signal (SIGHUP, noteSignal) == SIG_IGN)
        std::signal (SIGHUP, SIG_IGN);
#endif
#ifdef SIGXFSZ
    std::signal (SIGXFSZ, SIG_IGN);
#endif
}

void checkForInterrupt()
{
    if (const int signal = caughtSignal; signal != 0)
        throw Failure ("interrupted", Failure::interrupted + signal);
}

} // namespace render
