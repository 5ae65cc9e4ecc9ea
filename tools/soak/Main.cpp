// vorlo_soak: simulates hours of use and tells of glitches and of memory that isn't given back.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/soak/Soak.h"

#include <chrono>
#include <cstdio>
#include <numeric>
#include <optional>

namespace
{

struct Options
{
    double hours = 0.0;
    juce::int64 seed = 1;
};

std::optional<Options> parse (const juce::StringArray& words)
{
    Options options;

    for (int i = 0; i < words.size(); ++i)
        if (words[i] == "--seed" && i + 1 < words.size())
            options.seed = words[++i].getLargeIntValue();
        else
            options.hours = words[i].getDoubleValue();

    return options.hours > 0.0 ? std::optional (options) : std::nullopt;
}

/** The mean of a stretch of the sessions, given as parts of the whole run. */
double getMean (const std::vector<std::int64_t>& sizes, double from, double to)
{
    const auto at = [&] (double part) {
        return sizes.begin()
               + static_cast<std::ptrdiff_t> (part * static_cast<double> (sizes.size()));
    };

    return static_cast<double> (std::accumulate (at (from), at (to), std::int64_t{ 0 }))
           / static_cast<double> (at (to) - at (from));
}

/** Compares the first fifth after a warm-up of a fifth with the last one. True if nothing grew. */
bool reportMemory (const std::vector<std::int64_t>& sizes)
{
    constexpr size_t fewest = 20;
    constexpr double allowedGrowth = 64.0 * 1024.0;

    if (sizes.size() < fewest)
    {
        std::puts ("memory: the run is too short to tell (ten minutes of sound are enough)");
        return true;
    }

    const auto before = getMean (sizes, 0.2, 0.4), after = getMean (sizes, 0.8, 1.0);
    const auto grew = after - before > allowedGrowth;
    std::printf ("memory: %.1f kB in use early, %.1f kB late: %s\n", before / 1024.0,
                 after / 1024.0, grew ? "IT GROWS" : "steady");
    return ! grew;
}

bool runFor (const Options& options, const juce::File& folder)
{
    soak::Soak soak (folder, options.seed);
    const auto started = std::chrono::steady_clock::now();
    auto nextReport = 3600.0;
    auto toldOfGlitch = false;

    while (soak.getSeconds() < options.hours * 3600.0)
    {
        soak.runSession();

        if (! toldOfGlitch && soak.getOutput().getNumGlitches() > 0)
        {
            toldOfGlitch = true;
            std::printf ("GLITCH: %s, before second %.0f, with about these settings:\n%s\n",
                         soak.getOutput().getFirstGlitch(), soak.getSeconds(),
                         soak.describeSettings().toRawUTF8());
        }

        if (soak.getSeconds() >= nextReport)
        {
            std::printf ("%.0f hours of sound\n", nextReport / 3600.0);
            std::fflush (stdout);
            nextReport += 3600.0;
        }
    }

    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - started;
    const auto& output = soak.getOutput();
    std::printf ("%.2f hours of sound in %.0f s, seed %lld: %lld blocks, %lld state calls\n",
                 soak.getSeconds() / 3600.0, took.count(), static_cast<long long> (options.seed),
                 static_cast<long long> (soak.getNumBlocks()),
                 static_cast<long long> (soak.getNumStateCalls()));
    std::printf ("sound: %lld glitches, loudest sample %.2f, fingerprint %016llx\n",
                 static_cast<long long> (output.getNumGlitches()),
                 static_cast<double> (output.getLoudest()),
                 static_cast<unsigned long long> (output.getFingerprint()));
    return reportMemory (soak.getHeapSizes()) && output.getNumGlitches() == 0;
}

} // namespace

int main (int argc, char** argv)
{
    const auto options = parse (juce::StringArray (argv + 1, argc - 1));

    if (! options)
    {
        std::fputs ("usage: vorlo_soak HOURS [--seed N]\n", stderr);
        return 2;
    }

    const juce::ScopedJuceInitialiser_GUI messageThread;
    const auto folder = juce::File::getSpecialLocation (juce::File::tempDirectory)
                            .getNonexistentChildFile ("vorlo-soak", {});
    folder.createDirectory();
    const auto isSound = runFor (*options, folder);
    folder.deleteRecursively();
    return isSound ? 0 : 1;
}
