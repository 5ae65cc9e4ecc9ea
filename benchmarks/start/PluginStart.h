// Starting a plug-in binary the way a bare host does, timed.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

/** What starting one plug-in costs in a process that had none. */
struct StartCosts
{
    double firstMs = 0.0;  ///< load the binary, make an instance
    double warmMs = 0.0;   ///< make one more, the median of several
    double memoryKb = 0.0; ///< resident memory of one more, the mean of several
};

/** Makes an instance that lives until the process ends; throws std::runtime_error if it can't. */
using MakeInstance = std::function<void()>;

/** Loads a VST 2 binary (`.so`). Throws std::runtime_error with one line. */
MakeInstance loadVst2 (const std::string& binary);

/** Loads the binary in an LV2 bundle (`.lv2`). Throws std::runtime_error with one line. */
MakeInstance loadLv2 (const std::string& bundle);

/** Loads a binary by its name's ending and measures. Once in a process. */
StartCosts measureStart (const std::string& plugin);
