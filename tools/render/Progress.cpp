// The percentage on the terminal.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/Progress.h"

#include <algorithm>
#include <cstdio>

#ifdef _WIN32
#include <io.h>
#define isatty _isatty
#define fileno _fileno
#else
#include <unistd.h>
#endif

namespace render
{

Progress::Progress (std::int64_t totalToReach)
    : total (std::max<std::int64_t> (totalToReach, 1)),
      isWatched (isatty (fileno (stderr)) != 0)
{
}

Progress::~Progress()
{
    if (percentShown >= 0)
        std::fputs ("\r     \r", stderr);
}

void Progress::show (std::int64_t done)
{
    const auto percent =
        static_cast<int> (100.0 * static_cast<double> (done) / static_cast<double> (total));

    if (! isWatched || percent == percentShown)
        return;

    std::fprintf (stderr, "\r%3d %%", percent);
    percentShown = percent;
}

} // namespace render
