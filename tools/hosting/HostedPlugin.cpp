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

/** Adds the plug-ins that a manifest names: LV2 knows them by URI, and finds installed ones too. */
void findNamedPlugins (juce::AudioPluginFormat& format, const juce::String& manifest,
                       const juce::FileSearchPath& searchPath, Descriptions& found)
{
    for (const auto& uri : format.searchPathsForPlugins (searchPath, false, false))
        if (manifest.contains ("<" + uri + ">"))
            format.findAllTypesForFile (found, uri);
}

} // namespace

std::unique_ptr<HostedPlugin> HostedPlugin::load (const juce::File& binary, double sampleRate,
                                                  int blockSize, juce::String& error)
{
    std::unique_ptr<HostedPlugin> plugin (new HostedPlugin());
    plugin->format = makeFormat (binary);
    error.clear();

    if (! binary.exists())
        error = "there is no plug-in " + binary.getFullPathName().quoted();
    else if (plugin->format == nullptr)
        error = binary.getFullPathName().quoted() + " is neither a .so, nor a .vst3, nor a .lv2";
    else
        error = plugin->open (binary, sampleRate, blockSize);

    return error.isEmpty() ? std::move (plugin) : nullptr;
}

juce::String HostedPlugin::open (const juce::File& binary, double sampleRate, int blockSize)
{
    const auto found = find (binary);
    juce::String reason;

    if (found.size() == 1)
        instance = format->createInstanceFromDescription (*found.getFirst(), sampleRate, blockSize,
                                                          reason);

    if (instance == nullptr)
        return binary.getFullPathName().quoted() + " is no plug-in that can be loaded";

    // An installed bundle with the same URI would be taken instead, silently.
    if (bundle != nullptr && ! isLibraryLoadedFrom (binary))
        return "an installed plug-in with the same URI stands in the way of "
               + binary.getFullPathName().quoted();

    return {};
}

juce::OwnedArray<juce::PluginDescription> HostedPlugin::find (const juce::File& binary)
{
    Descriptions found;
    const auto manifest = binary.getChildFile ("manifest.ttl");

    if (! binary.hasFileExtension ("lv2"))
    {
        format->findAllTypesForFile (found, binary.getFullPathName());
    }
    else if (manifest.existsAsFile())
    {
        bundle = std::make_unique<LoneBundle> (binary);
        findNamedPlugins (*format, manifest.loadFileAsString(), bundle->getSearchPath(), found);
    }

    return found;
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
