// Loading of VST 2 and LV2 binaries, and the clock around it.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks/start/PluginStart.h"

#include <lv2/atom/atom.h>
#include <lv2/buf-size/buf-size.h>
#include <lv2/core/lv2.h>
#include <lv2/options/options.h>
#include <lv2/urid/urid.h>
#include <pluginterfaces/fst/aeffect.h>

#include <dlfcn.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>
#include <vector>

namespace
{

template <typename Function>
Function findFunction (const std::string& binary, const char* name)
{
    auto* const library = dlopen (binary.c_str(), RTLD_NOW | RTLD_LOCAL);

    if (library == nullptr)
        throw std::runtime_error (dlerror());

    auto* const function = dlsym (library, name);

    if (function == nullptr)
        throw std::runtime_error (binary + " has no " + name);

    return reinterpret_cast<Function> (function);
}

t_fstPtrInt answerAsVst2Host (AEffect*, int opcode, int, t_fstPtrInt, void* const, float)
{
    constexpr int audioMasterVersion = 1;
    return opcode == audioMasterVersion ? 2400 : 0;
}

LV2_URID mapUri (LV2_URID_Map_Handle, const char* uri)
{
    static std::map<std::string, LV2_URID> numbers;
    return numbers.try_emplace (uri, static_cast<LV2_URID> (numbers.size() + 1)).first->second;
}

/** Makes an instance with what JUCE's wrapper asks a host for. */
void makeLv2Instance (const LV2_Descriptor& descriptor, const std::string& bundle)
{
    static LV2_URID_Map map{ nullptr, mapUri };
    static const std::int32_t blockSize = 256;
    static const LV2_Options_Option options[] = {
        { LV2_OPTIONS_INSTANCE, 0, mapUri (nullptr, LV2_BUF_SIZE__maxBlockLength),
          sizeof (blockSize), mapUri (nullptr, LV2_ATOM__Int), &blockSize },
        { LV2_OPTIONS_INSTANCE, 0, 0, 0, 0, nullptr }
    };
    const LV2_Feature mapFeature{ LV2_URID__map, &map };
    const LV2_Feature boundedFeature{ LV2_BUF_SIZE__boundedBlockLength, nullptr };
    const LV2_Feature optionsFeature{ LV2_OPTIONS__options,
                                      const_cast<LV2_Options_Option*> (options) };
    const LV2_Feature* const features[] = { &mapFeature, &boundedFeature, &optionsFeature,
                                            nullptr };

    if (descriptor.instantiate (&descriptor, 48000.0, bundle.c_str(), features) == nullptr)
        throw std::runtime_error (bundle + " makes no instance");
}

double getMilliseconds (const std::function<void()>& function)
{
    const auto start = std::chrono::steady_clock::now();
    function();
    return std::chrono::duration<double, std::milli> (std::chrono::steady_clock::now() - start)
        .count();
}

double getResidentKb()
{
    long total = 0, resident = 0;
    std::ifstream ("/proc/self/statm") >> total >> resident;
    return static_cast<double> (resident) * static_cast<double> (sysconf (_SC_PAGESIZE)) / 1024.0;
}

} // namespace

MakeInstance loadVst2 (const std::string& binary)
{
    using Entry = AEffect* (*) (audioMasterCallback);
    const auto entry = findFunction<Entry> (binary, "VSTPluginMain");

    return [entry, binary]
    {
        constexpr int open = 0;
        auto* const effect = entry (answerAsVst2Host);

        if (effect == nullptr)
            throw std::runtime_error (binary + " makes no instance");

        effect->dispatcher (effect, open, 0, 0, nullptr, 0.0f);
    };
}

MakeInstance loadLv2 (const std::string& bundle)
{
    std::string binary;

    for (const auto& entry : std::filesystem::directory_iterator (bundle))
        if (entry.path().extension() == ".so")
            binary = entry.path();

    const auto entry =
        findFunction<const LV2_Descriptor* (*) (std::uint32_t)> (binary, "lv2_descriptor");
    const auto* const descriptor = entry (0);

    if (descriptor == nullptr)
        throw std::runtime_error (bundle + " describes no plug-in");

    return [descriptor, bundle] { makeLv2Instance (*descriptor, bundle + "/"); };
}

StartCosts measureStart (const std::string& plugin)
{
    constexpr int numWarm = 20;
    StartCosts costs;
    MakeInstance make;
    costs.firstMs = getMilliseconds (
        [&]
        {
            make = plugin.ends_with (".lv2") ? loadLv2 (plugin) : loadVst2 (plugin);
            make();
        });

    make(); // what the second one still sets up isn't counted as an instance's own
    const auto before = getResidentKb();
    std::vector<double> warm;

    for (int i = 0; i < numWarm; ++i)
        warm.push_back (getMilliseconds (make));

    costs.memoryKb = (getResidentKb() - before) / numWarm;
    std::nth_element (warm.begin(), warm.begin() + numWarm / 2, warm.end());
    costs.warmMs = warm[numWarm / 2];
    return costs;
}
