// Makes every write to a file fail, as on a full disk.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>
#include <sys/resource.h>

/** While it lives, no file of this process can grow beyond a few bytes. */
class FullDisk final
{
public:
    FullDisk() : handler (std::signal (SIGXFSZ, SIG_IGN))
    {
        getrlimit (RLIMIT_FSIZE, &before);
        const rlimit tiny{ 10, before.rlim_max };
        setrlimit (RLIMIT_FSIZE, &tiny);
    }

    ~FullDisk()
    {
        setrlimit (RLIMIT_FSIZE, &before);
        std::signal (SIGXFSZ, handler);
    }

    FullDisk (const FullDisk&) = delete;
    FullDisk& operator= (const FullDisk&) = delete;

private:
    rlimit before{};
    void (*handler) (int);
};
