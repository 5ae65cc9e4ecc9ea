// Compares what starting plug-in binaries costs, each in fresh processes that take turns.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks/start/PluginStart.h"

#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <optional>
#include <vector>

namespace
{

constexpr int numRounds = 15;

/** Measures in a child, which is left without a clean-up: its instances are never closed. */
[[noreturn]] void measureInChild (const std::string& plugin, int output)
{
    try
    {
        const auto costs = measureStart (plugin);
        const auto numWritten = write (output, &costs, sizeof (costs));
        _exit (numWritten == static_cast<ssize_t> (sizeof (costs)) ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    catch (const std::exception& e)
    {
        std::fprintf (stderr, "vorlo_start_benchmark: %s\n", e.what());
        _exit (EXIT_FAILURE);
    }
}

std::optional<StartCosts> measureAfresh (const std::string& plugin)
{
    int ends[2];

    if (pipe (ends) != 0)
        return {};

    const auto child = fork();

    if (child == 0)
        measureInChild (plugin, ends[1]);

    close (ends[1]);
    StartCosts costs;
    const auto numRead = read (ends[0], &costs, sizeof (costs));
    close (ends[0]);
    waitpid (child, nullptr, 0);
    return numRead == static_cast<ssize_t> (sizeof (costs)) ? std::optional (costs) : std::nullopt;
}

double getMedian (std::vector<StartCosts> costs, double StartCosts::*field)
{
    const auto middle = costs.begin() + static_cast<std::ptrdiff_t> (costs.size() / 2);
    std::nth_element (costs.begin(), middle, costs.end(),
                      [field] (const auto& a, const auto& b) { return a.*field < b.*field; });
    return (*middle).*field;
}

} // namespace

int main (int numArguments, char** arguments)
{
    const std::vector<std::string> plugins (arguments + 1, arguments + numArguments);

    if (plugins.empty())
    {
        std::fprintf (stderr, "usage: vorlo_start_benchmark PLUGIN...   (.so of VST 2, .lv2)\n");
        return 2;
    }

    std::vector<std::vector<StartCosts>> results (plugins.size());

    for (int round = 0; round < numRounds; ++round)
        for (size_t i = 0; i < plugins.size(); ++i)
        {
            const auto costs = measureAfresh (plugins[i]);

            if (! costs)
                return EXIT_FAILURE;

            results[i].push_back (*costs);
        }

    std::printf ("%10s %10s %10s\n", "first ms", "warm ms", "kB");

    for (size_t i = 0; i < plugins.size(); ++i)
        std::printf ("%10.2f %10.3f %10.0f  %s\n", getMedian (results[i], &StartCosts::firstMs),
                     getMedian (results[i], &StartCosts::warmMs),
                     getMedian (results[i], &StartCosts::memoryKb), plugins[i].c_str());
}
