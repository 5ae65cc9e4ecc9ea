// Starting, watching and ending of a process.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/ToolProcess.h"

#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace
{

/** What the child does: everything is prepared, and only calls that are safe after fork follow. */
[[noreturn]] void becomeTool (char* const* arguments, char* const* environment, const char* folder,
                              const char* out, const char* err, rlim_t largestFile)
{
    const auto outFile = open (out, O_CREAT | O_WRONLY | O_TRUNC, 0600);
    const auto errFile = open (err, O_CREAT | O_WRONLY | O_TRUNC, 0600);
    const rlimit limit{ largestFile, largestFile };

    if (chdir (folder) == 0 && dup2 (outFile, STDOUT_FILENO) >= 0
        && dup2 (errFile, STDERR_FILENO) >= 0 && setrlimit (RLIMIT_FSIZE, &limit) == 0)
        execve (arguments[0], arguments, environment);

    _exit (127);
}

std::vector<char*> makePointers (std::vector<std::string>& texts)
{
    std::vector<char*> pointers;

    for (auto& text : texts)
        pointers.push_back (text.data());

    pointers.push_back (nullptr);
    return pointers;
}

} // namespace

ToolProcess::ToolProcess (const juce::File& program, const juce::StringArray& arguments,
                          const juce::File& workingFolder, std::optional<int> largestFile,
                          const juce::File& home)
{
    const auto homeToUse = home == juce::File() ? streams.getChild ("home") : home;
    std::vector<std::string> words{ program.getFullPathName().toStdString() };

    for (const auto& argument : arguments)
        words.push_back (argument.toStdString());

    std::vector<std::string> variables{ "HOME=" + homeToUse.getFullPathName().toStdString(),
                                        "PATH=/usr/bin:/bin" };

    // The sanitizers' switches, where there are any.
    for (const auto* name : { "ASAN_OPTIONS", "UBSAN_OPTIONS", "TSAN_OPTIONS", "LSAN_OPTIONS" })
        if (const auto* value = std::getenv (name))
            variables.push_back (std::string (name) + "=" + value);

    const auto argumentPointers = makePointers (words);
    const auto variablePointers = makePointers (variables);
    const auto folder = workingFolder.getFullPathName().toStdString();
    const auto out = streams.getChild ("out").getFullPathName().toStdString();
    const auto err = streams.getChild ("err").getFullPathName().toStdString();
    const auto limit = largestFile ? static_cast<rlim_t> (*largestFile) : RLIM_INFINITY;
    process = fork();

    if (process == 0)
        becomeTool (argumentPointers.data(), variablePointers.data(), folder.c_str(), out.c_str(),
                    err.c_str(), limit);
}

ToolProcess::~ToolProcess()
{
    if (! isRunning())
        return;

    sendSignal (SIGKILL);
    collect (0);
}

bool ToolProcess::collect (int options)
{
    int newStatus = 0;

    if (! status && waitpid (process, &newStatus, options) == process)
        status = WIFSIGNALED (newStatus) ? 128 + WTERMSIG (newStatus) : WEXITSTATUS (newStatus);

    return status.has_value();
}

bool ToolProcess::isRunning() { return process > 0 && ! collect (WNOHANG); }
void ToolProcess::sendSignal (int signal) const { kill (process, signal); }

ToolProcess::Result ToolProcess::wait()
{
    collect (0);
    return { status.value_or (-1), streams.getChild ("out").loadFileAsString(),
             streams.getChild ("err").loadFileAsString() };
}

ToolProcess::Result ToolProcess::run (const juce::File& program, const juce::StringArray& arguments,
                                      const juce::File& workingFolder,
                                      std::optional<int> largestFile, const juce::File& home)
{
    return ToolProcess (program, arguments, workingFolder, largestFile, home).wait();
}
