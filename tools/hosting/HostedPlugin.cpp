// Finding the format of a plug-in binary and making an instance.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/hosting/HostedPlugin.h"

#include "tools/hosting/LoadedLibraries.h"

namespace hosting
{

namespace
{

using Descriptions = juce::OwnedArray<juce::PluginDescription>;

std::unique_ptr<juce::AudioPluginFormat> makeFormat (const juce::File& binary)
{
    if (binary.hasFileExtension ("so;dll;vst"))
        return std::make_unique<juce::VSTPluginFormat>();

    if (binary.hasFileExtension ("vst3"))
        return std::make_unique<juce::VST3PluginFormat>();

    if (binary.hasFileExtension ("lv2"))
        return std::make_unique<juce::LV2PluginFormat>();

    return {};
}

/** LV2 knows plug-ins by URI: reads the folder's bundles and takes those the manifest names. */
void findInBundle (juce::AudioPluginFormat& format, const juce::File& bundle, Descriptions& found)
{
    const juce::FileSearchPath folder (bundle.getParentDirectory().getFullPathName());
    const auto manifest = bundle.getChildFile ("manifest.ttl").loadFileAsString();

    for (const auto& uri : format.searchPathsForPlugins (folder, false, false))
        if (manifest.contains ("<" + uri + ">"))
            format.findAllTypesForFile (found, uri);
}

bool isLv2 (const juce::File& binary) { return binary.hasFileExtension ("lv2"); }

} // namespace

std::unique_ptr<HostedPlugin> HostedPlugin::load (const juce::File& binary, double sampleRate,
                                                  int blockSize, juce::String& error)
{
    const auto name = binary.getFullPathName().quoted();
    std::unique_ptr<HostedPlugin> plugin (new HostedPlugin());
    plugin->format = makeFormat (binary);

    if (! binary.exists())
        error = "there is no plug-in " + name;
    else if (plugin->format == nullptr)
        error = name + " is neither a .so, nor a .vst3, nor a .lv2";

    if (error.isNotEmpty())
        return {};

    Descriptions found;

    if (isLv2 (binary))
        findInBundle (*plugin->format, binary, found);
    else
        plugin->format->findAllTypesForFile (found, binary.getFullPathName());

    if (found.size() == 1)
        plugin->instance = plugin->format->createInstanceFromDescription (
            *found.getFirst(), sampleRate, blockSize, error);

    if (plugin->instance == nullptr)
        error = name + " is no plug-in that can be loaded";
    // An installed bundle with the same URI would be taken instead, silently.
    else if (isLv2 (binary) && ! isLibraryLoadedFrom (binary))
        error = "another installed plug-in with the same URI stands in the way of " + name;

    return error.isEmpty() ? std::move (plugin) : nullptr;
}

juce::AudioProcessorParameter* HostedPlugin::findParameter (const juce::String& name) const
{
    return hosting::findParameter (*instance, name);
}

juce::AudioProcessorParameter* findParameter (const juce::AudioProcessor& processor,
                                              const juce::String& name)
{
    constexpr int unlimited = 1024;

    for (auto* parameter : processor.getParameters())
        if (parameter->getName (unlimited) == name)
            return parameter;

    return nullptr;
}

} // namespace hosting
