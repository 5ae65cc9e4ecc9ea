// A command-line tool, run as a process of its own.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/TemporaryFolder.h"

#include <optional>
#include <sys/types.h>

/** Starts a program in a folder, with a home folder of its own and no display, and collects what it
    prints.
*/
class ToolProcess final
{
public:
    struct Result
    {
        int exitCode = -1; ///< 128 plus the signal's number if a signal ended it
        juce::String output, errors;
    };

    /** @param largestFile  if given, the size in bytes beyond which the process can't write
        @param home         the home folder; by default one that doesn't exist
    */
    ToolProcess (const juce::File& program, const juce::StringArray& arguments,
                 const juce::File& workingFolder, std::optional<int> largestFile = {},
                 const juce::File& home = {});
    ~ToolProcess();

    /** Waits for the end. */
    Result wait();

    void sendSignal (int signal) const;
    bool isRunning();

    /** Starts, and waits for the end. */
    static Result run (const juce::File& program, const juce::StringArray& arguments,
                       const juce::File& workingFolder, std::optional<int> largestFile = {},
                       const juce::File& home = {});

private:
    bool collect (int options);

    TemporaryFolder streams;
    pid_t process = 0;
    std::optional<int> status;

    JUCE_DECLARE_NON_COPYABLE (ToolProcess)
};
