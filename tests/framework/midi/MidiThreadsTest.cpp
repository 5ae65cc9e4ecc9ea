// MIDI on an audio thread while the message thread and the host's state thread are at work.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/midi/ParamsMidiMapper.h"
#include "framework/presets/PresetFileManager.h"
#include "product/VorloProcessor.h"
#include "tests/support/MidiEvents.h"
#include "tests/support/RealtimeGuard.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <thread>

namespace
{

/** Comes and goes while it is told. */
struct Visitor final : zembra::Param::Listener,
                       zembra::ParamsMidiMapper::Listener,
                       zembra::PresetFileManagerListener
{
    void paramChanged (zembra::Param*, double, double, int) override { ++calls; }
    void mappingChanged (zembra::ParamsMidiMapper*, const juce::String&, int) override { ++calls; }
    void presetDirtyChanged (zembra::PresetFileManager*, const juce::File&, bool) override
    {
        ++calls;
    }

    std::atomic<int> calls{ 0 };
};

class MidiThreadsTest : public testing::Test
{
protected:
    MidiThreadsTest()
    {
        const auto programs = folder.getChild ("user/Ombrel/Vorlo/presets/MIDI Programs");
        programs.createDirectory();

        for (const auto* drive : { "11", "12" })
            programs.getChildFile (juce::String (drive) + ".ompreset")
                .replaceWithText (juce::String ("<Vorlo><PARAMS dryWetLink=\"1\" drive=\"") + drive
                                  + "\"/></Vorlo>");

        processor = std::make_unique<VorloProcessor> (zembra::FolderRoots::inside (folder.get()));
        processor->prepareToPlay (48000.0, blockSize);
        processor->setMidiEnabled (true);
        processor->setMidiProgramChangeEnabled (true);

        for (int i = 0; i < processor->getParamSet().getNumParams(); ++i)
            processor->getParamsMidiMapper().setMapping (i / 2, processor->getParamId (i));
    }

    /** Plays blocks full of controllers and program changes until it is told to stop. */
    void play (int minimumBlocks, std::atomic<bool>& stop, RealtimeGuard::Counts& counts)
    {
        constexpr int numBuffers = 16, numEvents = 12;
        std::array<juce::MidiBuffer, numBuffers> blocks;
        juce::Random random (1);

        for (auto& midi : blocks)
            for (int i = 0; i < numEvents; ++i)
                midi.addEvent (juce::MidiMessage::controllerEvent (1, random.nextInt (16),
                                                                   random.nextInt (128)),
                               i);

        blocks[3].addEvent (juce::MidiMessage::programChange (1, 0), 0);
        blocks[11].addEvent (juce::MidiMessage::programChange (1, 1), 0);
        juce::AudioBuffer<float> buffer (2, blockSize);
        buffer.clear();

        const RealtimeGuard guard;

        for (int i = 0; i < minimumBlocks || ! stop; ++i)
            processor->processBlock (buffer, blocks[static_cast<size_t> (i % numBuffers)]);

        counts = guard.getCounts();
    }

    static constexpr int blockSize = 32;
    TemporaryFolder folder;
    std::unique_ptr<VorloProcessor> processor;
};

TEST_F (MidiThreadsTest, TheAudioThreadNeitherAllocatesNorLocksNorCallsTheSystem)
{
    std::atomic<bool> stop{ false };
    RealtimeGuard::Counts counts;
    std::thread audio ([&] { play (1000, stop, counts); });
    auto& params = processor->getParamSet();
    auto& mapper = processor->getParamsMidiMapper();
    auto& presets = processor->getPresetFileManager();
    auto& mapPresets = processor->getMidiPresetFileManager();

    for (int round = 0; round < 100; ++round)
    {
        Visitor visitor;
        params.getParam ("drive")->addListener (&visitor);
        mapper.addListener (&visitor);
        presets.addListener (&visitor);
        mapPresets.addListener (&visitor);
        processor->startLearning (processor->getParamId (round % params.getNumParams()));
        processor->deliverRealtimeChanges();
        presets.stepPreset (1);
        mapper.removeMapping (processor->getParamId (round % 7));
        processor->setMidiChannel (round % 2);

        if (round % 3 == 0)
            processor->stopLearning();

        mapPresets.removeListener (&visitor);
        presets.removeListener (&visitor);
        mapper.removeListener (&visitor);
        params.getParam ("drive")->removeListener (&visitor);
    }

    stop = true;
    audio.join();
    EXPECT_EQ (counts.allocations, 0);
    EXPECT_EQ (counts.locks, 0);
    EXPECT_EQ (counts.systemCalls, 0);
}

TEST_F (MidiThreadsTest, AHostMayAutomateSaveAndRestoreMeanwhile)
{
    std::atomic<bool> stop{ false };
    RealtimeGuard::Counts counts;
    std::thread audio ([&] { play (200, stop, counts); });
    std::thread host (
        [&]
        {
            juce::MemoryBlock chunk;

            for (int i = 0; i < 60; ++i)
            {
                processor->setParameter (i % processor->getNumParameters(),
                                         static_cast<float> (i % 10) / 9.0f);
                processor->getStateInformation (chunk);
                processor->setStateInformation (chunk.getData(),
                                                static_cast<int> (chunk.getSize()));
            }

            stop = true;
        });

    while (! stop)
    {
        processor->deliverRealtimeChanges();
        processor->setMidiEnabled (true);
    }

    host.join();
    audio.join();
    EXPECT_EQ (counts.allocations + counts.locks + counts.systemCalls, 0);

    for (const auto* param : processor->getParamSet())
    {
        EXPECT_GE (param->getValue(), param->getMinValue());
        EXPECT_LE (param->getValue(), param->getMaxValue());
    }
}

} // namespace
