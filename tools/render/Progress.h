// How far the work has come, for a person who watches.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace render
{

/** Shows a percentage on stderr if that is a terminal, and wipes it away at the end. */
class Progress final
{
public:
    /** @param totalToReach  the amount that stands for 100 % */
    explicit Progress (std::int64_t totalToReach);
    ~Progress();

    Progress (const Progress&) = delete;
    Progress& operator= (const Progress&) = delete;

    void show (std::int64_t done);

private:
    const std::int64_t total;
    const bool isWatched;
    int percentShown = -1;
};

} // namespace render
