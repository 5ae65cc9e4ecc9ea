// A processor that is played with MIDI, and what its host and its listeners hear.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/midi/ParamsMidiMapper.h"
#include "framework/presets/PresetFileManager.h"
#include "tests/support/MidiEvents.h"
#include "tests/support/TestProcessor.h"

#include <gtest/gtest.h>

/** What the host hears. */
struct HostLog final : juce::AudioProcessorListener
{
    void audioProcessorParameterChanged (juce::AudioProcessor*, int index, float value) override
    {
        log << index << "=" << juce::roundToInt (value * 127.0f) << " ";
    }

    void audioProcessorChanged (juce::AudioProcessor*, const ChangeDetails&) override {}

    juce::String take() { return std::exchange (log, {}).trim(); }

    juce::String log;
};

/** What the listeners of the switches and of the presets hear. */
struct SwitchLog final : zembra::PluginProcessor::Listener, zembra::PresetFileManagerListener
{
    void midiEnabledChanged (zembra::PluginProcessor*, bool enabled) override
    {
        log << "enabled=" << (enabled ? 1 : 0) << " ";
    }

    void midiProgramChangeEnabledChanged (zembra::PluginProcessor*, bool enabled) override
    {
        log << "programs=" << (enabled ? 1 : 0) << " ";
    }

    void midiChannelChanged (zembra::PluginProcessor*, int channel) override
    {
        log << "channel=" << channel << " ";
    }

    void midiLearnChanged (zembra::PluginProcessor*) override { log << "learn "; }

    void presetDirtyChanged (zembra::PresetFileManager*, const juce::File&, bool dirty) override
    {
        log << "dirty=" << (dirty ? 1 : 0) << " ";
    }

    juce::String take() { return std::exchange (log, {}).trim(); }

    juce::String log;
};

/** Plays blocks of silence with MIDI to a processor. */
class MidiTest : public testing::Test
{
protected:
    MidiTest()
    {
        processor.prepareToPlay (48000.0, 64);
        processor.addListener (&host);
    }

    ~MidiTest() override { processor.removeListener (&host); }

    void play (MidiMessages messages)
    {
        auto midi = makeMidi (messages);
        const auto numEvents = midi.getNumEvents();
        juce::AudioBuffer<float> buffer (2, 64);
        buffer.clear();
        processor.processBlock (buffer, midi);
        EXPECT_EQ (midi.getNumEvents(), numEvents) << "MIDI is looked at, not eaten";
    }

    TestProcessor tested;
    VorloProcessor& processor = tested.processor;
    zembra::ParamsMidiMapper& mapper = processor.getParamsMidiMapper();
    HostLog host;
};
