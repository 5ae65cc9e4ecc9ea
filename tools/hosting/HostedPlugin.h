// A plug-in binary, loaded the way a host does it.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

    std::unique_ptr<juce::AudioPluginFormat>
        format; ///< some instances need it as long as they live
    std::unique_ptr<juce::AudioPluginInstance> instance;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (HostedPlugin)
};

/** The parameter of a processor with exactly this name, or null. */
juce::AudioProcessorParameter* findParameter (const juce::AudioProcessor& processor,
                                              const juce::String& name);

} // namespace hosting
