// A plug-in binary, loaded the way a host does it.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/hosting/LoneBundle.h"

#include <juce_audio_processors/juce_audio_processors.h>

#include <memory>

namespace hosting
{

/** Loads a VST 2, VST3 or LV2 build by its path. JUCE's message manager must exist.
    [message thread]
*/
class HostedPlugin final
{
public:
    /** Loads the one plug-in in a binary or bundle (`.so`, `.vst3`, `.lv2`).
        @param error  says in one line what went wrong, if anything did
        @returns      null if something went wrong
    */
    static std::unique_ptr<HostedPlugin> load (const juce::File& binary, double sampleRate,
                                               int blockSize, juce::String& error);

    juce::AudioPluginInstance& getInstance() noexcept { return *instance; }

    /** The parameter with exactly this name, or null. */
    juce::AudioProcessorParameter* findParameter (const juce::String& name) const;

private:
    HostedPlugin() = default;

    juce::String open (const juce::File& binary, double sampleRate, int blockSize);
    juce::OwnedArray<juce::PluginDescription> find (const juce::File& binary);

    std::unique_ptr<LoneBundle> bundle; ///< of an LV2 plug-in
    std::unique_ptr<juce::AudioPluginFormat> format;
    std::unique_ptr<juce::AudioPluginInstance> instance;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (HostedPlugin)
};

/** The parameter of a processor with exactly this name, or null. */
juce::AudioProcessorParameter* findParameter (const juce::AudioProcessor& processor,
                                              const juce::String& name);

} // namespace hosting
