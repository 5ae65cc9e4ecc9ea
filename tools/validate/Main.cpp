// vorlo_validate: checks built plug-ins as the strictest of hosts would.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/hosting/HostedPlugin.h"
#include "tools/validate/Options.h"
#include "tools/validate/Validation.h"

#include <cstdio>

namespace
{

constexpr auto usage =
    "usage: vorlo_validate [--thorough] [--seed N] [--repeat N] [--only TEXT] PLUGIN...";

/** Loads the binary anew for each instance, and keeps what it needs. */
validate::Factory makeFactory (const juce::File& binary)
{
    return [binary] (juce::String& error) -> validate::Instance
    {
        std::shared_ptr<hosting::HostedPlugin> plugin =
            hosting::HostedPlugin::load (binary, 48000.0, 512, error);
        return plugin == nullptr ? nullptr : validate::Instance (plugin, &plugin->getInstance());
    };
}

int validatePlugin (const validate::Options& options, const juce::String& path)
{
    const auto binary = juce::File::getCurrentWorkingDirectory().getChildFile (path);
    auto numFailed = 0;

    for (int i = 0; i < options.numRepeats; ++i)
    {
        const auto seed = options.seed + i;
        std::printf ("%s, seed %lld\n", binary.getFileName().toRawUTF8(),
                     static_cast<long long> (seed));
        validate::Bench bench (makeFactory (binary), seed, options.isThorough);
        numFailed += validate::runAllChecks (bench, options.only);
    }

    return numFailed;
}

} // namespace

int main (int argc, char** argv)
{
    validate::Options options;
    const auto fault = options.parse (juce::StringArray (argv + 1, argc - 1));

    if (fault.isNotEmpty())
    {
        std::fprintf (stderr, "vorlo_validate: %s; %s\n", fault.toRawUTF8(), usage);
        return 2;
    }

    const juce::ScopedJuceInitialiser_GUI juceIsUp;
    auto numFailed = 0;

    for (const auto& plugin : options.plugins)
        numFailed += validatePlugin (options, plugin);

    if (numFailed > 0)
        std::printf ("%d checks failed\n", numFailed);
    else
        std::puts ("all checks passed");

    return numFailed == 0 ? 0 : 1;
}
