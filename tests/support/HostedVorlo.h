// A built plug-in in a host, with its parameters under their ids.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/TestProcessor.h"
#include "tools/hosting/HostedPlugin.h"

#include <gtest/gtest.h>

/** Loads a built binary with JUCE's hosting and speaks to it in plain values, by the ids of the
    parameters. The plug-in sees a home folder of its own.
*/
class HostedVorlo final
{
public:
    /** @param path  of the VST 2, VST3 or LV2 build; the test fails if it can't be loaded */
    explicit HostedVorlo (const char* path, double sampleRate = 48000.0, int blockSize = 512)
    {
        setenv ("HOME", reference.folder.get().getFullPathName().toRawUTF8(), 1);
        juce::String error;
        plugin = hosting::HostedPlugin::load (juce::File (path), sampleRate, blockSize, error);
        EXPECT_NE (plugin, nullptr) << error;

        if (plugin == nullptr)
            return;

        get().setPlayHead (&playHead);
        get().prepareToPlay (sampleRate, blockSize);
    }

    ~HostedVorlo()
    {
        if (plugin != nullptr)
            get().releaseResources();
    }

    bool isLoaded() const noexcept { return plugin != nullptr; }
    juce::AudioPluginInstance& get() { return plugin->getInstance(); }

    /** The host's parameter for an id. The names are the same in all formats. */
    juce::AudioProcessorParameter& find (const juce::String& id)
    {
        auto* parameter = plugin->findParameter (reference.param (id).getName());
        EXPECT_NE (parameter, nullptr) << id;
        return *parameter;
    }

    /** Sets a plain value and lets the plug-in take it over. */
    void set (const juce::String& id, double plain)
    {
        find (id).setValue (static_cast<float> (reference.param (id).normalise (plain)));
        juce::AudioBuffer<float> nothing (2, 0);
        process (nothing);
    }

    /** The plain value as the host knows it. */
    double getValue (const juce::String& id)
    {
        return reference.param (id).denormalise (static_cast<double> (find (id).getValue()));
    }

    /** Processes a block of at most the announced size in place. */
    void process (juce::AudioBuffer<float>& block)
    {
        juce::MidiBuffer midi;
        get().processBlock (block, midi);
    }

    juce::MemoryBlock getState()
    {
        juce::MemoryBlock state;
        get().getStateInformation (state);
        return state;
    }

    void setState (const juce::MemoryBlock& state)
    {
        get().setStateInformation (state.getData(), static_cast<int> (state.getSize()));
    }

    ManualPlayHead playHead;

private:
    TestProcessor reference; ///< for ids, names and ranges
    std::unique_ptr<hosting::HostedPlugin> plugin;

    JUCE_DECLARE_NON_COPYABLE (HostedVorlo)
};
