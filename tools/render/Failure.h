// What ends the tool early: one line for the user and an exit code.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <stdexcept>
#include <string>

namespace render
{

/** Thrown where the work can't go on. The message is one line without a full stop. */
class Failure final : public std::runtime_error
{
public:
    static constexpr int failed = 1;        ///< the work could not be done
    static constexpr int usage = 2;         ///< the command line made no sense
    static constexpr int interrupted = 128; ///< plus the number of the signal

    explicit Failure (const std::string& message, int exitCodeToUse = failed)
        : std::runtime_error (message),
          exitCode (exitCodeToUse)
    {
    }

    int getExitCode() const noexcept { return exitCode; }

private:
    int exitCode;
};

/** A name as messages show it. */
inline std::string inQuotes (const std::string& text) { return '"' + text + '"'; }

} // namespace render
