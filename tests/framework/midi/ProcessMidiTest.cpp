// Controllers, channels and learning, as MIDI that comes with a block of audio.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/midi/ParamsMidiMapper.h"
#include "framework/presets/PresetFileManager.h"
#include "tests/support/MessageLoop.h"
#include "tests/support/MidiEvents.h"
#include "tests/support/TestProcessor.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

using Messages = std::initializer_list<std::initializer_list<juce::uint8>>;

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

class ProcessMidiTest : public testing::Test
{
protected:
    ProcessMidiTest()
    {
        processor.prepareToPlay (48000.0, 64);
        processor.addListener (&host);
    }

    ~ProcessMidiTest() override { processor.removeListener (&host); }

    void play (Messages messages)
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

TEST_F (ProcessMidiTest, ScalesAControllerAlongTheTravelOfTheParameter)
{
    processor.setMidiEnabled (true);
    mapper.setMapping (1, "crush");
    mapper.setMapping (1, "lowpassFreq");
    mapper.setMapping (1, "filterType");
    mapper.setMapping (1, "dry");

    play ({ { 0xb0, 1, 127 } });
    EXPECT_EQ (tested.get ("crush"), 100.0);
    EXPECT_EQ (tested.get ("lowpassFreq"), 20000.0);
    EXPECT_EQ (tested.get ("filterType"), 1.0);
    EXPECT_EQ (tested.get ("dry"), 18.0);

    play ({ { 0xb0, 1, 0 } });
    EXPECT_EQ (tested.get ("crush"), 0.0);
    EXPECT_EQ (tested.get ("lowpassFreq"), 20.0);
    EXPECT_EQ (tested.get ("filterType"), 0.0);
    EXPECT_EQ (tested.get ("dry"), -48.0);

    // 20 Hz to 20 kHz with 1 kHz in the middle: 20 + 19980 x^s, where 0.5^s = 980 / 19980.
    play ({ { 0xb0, 1, 64 } });
    const auto travel = 64.0 / 127.0;
    const auto exponent = std::log (980.0 / 19980.0) / std::log (0.5);
    EXPECT_DOUBLE_EQ (tested.get ("crush"), travel * 100.0);
    EXPECT_NEAR (tested.get ("lowpassFreq"), 20.0 + 19980.0 * std::pow (travel, exponent), 1e-6);
    EXPECT_EQ (tested.get ("filterType"), 1.0);
}

TEST_F (ProcessMidiTest, DoesNothingWhileMidiIsDisabled)
{
    mapper.setMapping (1, "crush");
    play ({ { 0xb0, 1, 127 } });
    EXPECT_EQ (tested.get ("crush"), 0.0);
}

TEST_F (ProcessMidiTest, TakesTheEventsOfABlockInOrder)
{
    processor.setMidiEnabled (true);
    mapper.setMapping (1, "crush");
    mapper.setMapping (2, "drive");
    play ({ { 0xb0, 1, 127 }, { 0xb0, 2, 127 }, { 0xb0, 1, 10 }, { 0xb5, 2, 20 } });
    EXPECT_DOUBLE_EQ (tested.get ("crush"), 100.0 * 10.0 / 127.0);
    EXPECT_DOUBLE_EQ (tested.get ("drive"), 100.0 * 20.0 / 127.0);
}

TEST_F (ProcessMidiTest, ListensToItsChannel)
{
    processor.setMidiEnabled (true);
    mapper.setMapping (1, "crush");

    for (int channel = 1; channel <= 16; ++channel)
    {
        const auto status = static_cast<juce::uint8> (0xb0 + channel - 1);
        tested.set ("crush", 0.0);
        processor.setMidiChannel (3);
        play ({ { status, 1, 127 } });
        EXPECT_EQ (tested.get ("crush"), channel == 3 ? 100.0 : 0.0) << channel;

        processor.setMidiChannel (0);
        play ({ { status, 1, 127 } });
        EXPECT_EQ (tested.get ("crush"), 100.0) << channel;
    }
}

TEST_F (ProcessMidiTest, IgnoresWhatIsNoWholeController)
{
    processor.setMidiEnabled (true);
    processor.startLearning ("drive");

    for (int cc = 0; cc < 128; ++cc)
        mapper.setMapping (cc, "crush");

    play ({ { 0x90, 1, 127 },
            { 0x80, 1, 0 },
            { 0xa0, 1, 127 },
            { 0xd0, 1 },
            { 0xe0, 1, 127 },
            { 0xf0, 0xb0, 1, 127, 0xf7 },
            { 0xf2, 1, 127 },
            { 0xf8 },
            { 0xb0 },
            { 0xb0, 127 } });
    EXPECT_EQ (tested.get ("crush"), 0.0);
    EXPECT_EQ (mapper.getMapping ("drive"), -1);
}

TEST_F (ProcessMidiTest, SurvivesBytesThatAreNoMidi)
{
    processor.setMidiEnabled (true);
    mapper.setMapping (200, "crush");
    mapper.setMapping (1, "lowpassFreq");
    play ({ { 0xb0, 200, 255 }, { 0xb0, 1, 255 }, { 0xb0, 255, 255 } });
    EXPECT_EQ (tested.get ("crush"), 100.0) << "clamped";
    EXPECT_EQ (tested.get ("lowpassFreq"), 20000.0);
}

TEST_F (ProcessMidiTest, MovesFrozenParametersToo)
{
    processor.setMidiEnabled (true);
    tested.param ("crush").changeFrozen (true);
    tested.param ("drive").setAutomatable (false);
    mapper.setMapping (1, "crush");
    mapper.setMapping (1, "drive");
    play ({ { 0xb0, 1, 127 } });
    EXPECT_EQ (tested.get ("crush"), 100.0);
    EXPECT_EQ (tested.get ("drive"), 100.0);
}

TEST_F (ProcessMidiTest, LearnsTheLastControllerThatMoves)
{
    processor.startLearning ("crush");
    EXPECT_TRUE (processor.isMidiEnabled()) << "learning turns MIDI on";
    EXPECT_EQ (processor.getMidiLearnParam(), &tested.param ("crush"));

    play ({ { 0xb0, 20, 64 } });
    EXPECT_EQ (mapper.getMapping ("crush"), 20);
    EXPECT_DOUBLE_EQ (tested.get ("crush"), 100.0 * 64.0 / 127.0) << "and moves it";

    play ({ { 0xb0, 21, 1 }, { 0xb0, 22, 127 } });
    EXPECT_EQ (mapper.getMapping ("crush"), 22);
    EXPECT_EQ (mapper.getParamsForCC (20).size() + mapper.getParamsForCC (21).size(), 0);

    // Another parameter, on the same controller: both are driven.
    processor.startLearning ("drive");
    play ({ { 0xb0, 22, 0 } });
    EXPECT_EQ (mapper.getParamsForCC (22), (juce::StringArray{ "crush", "drive" }));
    EXPECT_EQ (tested.get ("crush"), 0.0);

    processor.stopLearning();
    processor.stopLearning();
    EXPECT_EQ (processor.getMidiLearnParam(), nullptr);
    EXPECT_TRUE (processor.isMidiEnabled()) << "and leaves it on";
    play ({ { 0xb0, 30, 127 } });
    EXPECT_EQ (mapper.getMapping ("drive"), 22);
}

TEST_F (ProcessMidiTest, LearnsFromItsChannelOnly)
{
    processor.setMidiChannel (2);
    processor.startLearning ("crush");
    play ({ { 0xb0, 20, 64 } });
    EXPECT_EQ (mapper.getMapping ("crush"), -1);
    play ({ { 0xb1, 21, 64 } });
    EXPECT_EQ (mapper.getMapping ("crush"), 21);
}

TEST_F (ProcessMidiTest, CountsTheStartsOfLearning)
{
    SwitchLog log;
    processor.addListener (&log);
    EXPECT_EQ (log.take(), "enabled=0");

    processor.startLearning ("crush");
    EXPECT_EQ (log.take(), "enabled=1 learn");
    processor.startLearning ("crush");
    processor.stopLearning();
    EXPECT_EQ (log.take(), "learn") << "the second start of one parameter didn't count";

    processor.startLearning ("crush");
    processor.startLearning ("drive");
    EXPECT_EQ (log.take(), "learn") << "a change of target is no new learning";
    processor.stopLearning();
    EXPECT_EQ (processor.getMidiLearnParam(), &tested.param ("drive"));
    EXPECT_EQ (log.take(), "");
    processor.stopLearning();
    EXPECT_EQ (log.take(), "learn");

    processor.startLearning ("no such parameter");
    EXPECT_EQ (processor.getMidiLearnParam(), nullptr);
    EXPECT_EQ (log.take(), "");
    processor.removeListener (&log);
}

TEST_F (ProcessMidiTest, TellsOfItsSwitches)
{
    SwitchLog log;
    processor.setMidiEnabled (true);
    processor.addListener (&log);
    EXPECT_EQ (log.take(), "enabled=1");
    processor.addListener (&log);
    EXPECT_EQ (log.take(), "enabled=1") << "told again, and still only once in the list";

    processor.setMidiEnabled (true);
    processor.setMidiProgramChangeEnabled (false);
    EXPECT_EQ (log.take(), "");
    processor.setMidiProgramChangeEnabled (true);
    processor.setMidiEnabled (false);
    EXPECT_EQ (log.take(), "programs=1 enabled=0");
    processor.setMidiChannel (4);
    processor.setMidiChannel (4);
    EXPECT_EQ (log.take(), "channel=4 channel=4") << "also without a change";

    processor.removeListener (&log);
    processor.setMidiEnabled (true);
    EXPECT_EQ (log.take(), "");
}

TEST_F (ProcessMidiTest, TellsTheHostOncePerMovedParameterAndNotOnTheAudioThread)
{
    processor.setMidiEnabled (true);
    mapper.setMapping (1, "wet");
    mapper.setMapping (2, "lfoWaveform"); // the last of the table
    play ({ { 0xb0, 1, 10 }, { 0xb0, 1, 20 }, { 0xb0, 2, 127 }, { 0xb0, 3, 99 } });
    EXPECT_EQ (host.take(), "");

    EXPECT_TRUE (runMessageLoopUntil ([this] { return host.log.isNotEmpty(); }));
    EXPECT_EQ (host.take(), "1=20 22=127");
    processor.deliverRealtimeChanges();
    EXPECT_EQ (host.take(), "");

    play ({ { 0xb0, 1, 20 } });
    processor.deliverRealtimeChanges();
    EXPECT_EQ (host.take(), "") << "no change, no message";
}

TEST_F (ProcessMidiTest, TellsTheHostWhatALinkMovesAlong)
{
    processor.setMidiEnabled (true);
    tested.set ("dryWetLink", 1.0);
    mapper.setMapping (1, "dry");
    play ({ { 0xb0, 1, 127 } });
    EXPECT_EQ (tested.get ("wet"), 18.0);
    EXPECT_EQ (host.take(), "");
    processor.deliverRealtimeChanges();
    EXPECT_EQ (host.take(), "0=127 1=127");
}

TEST_F (ProcessMidiTest, TheHostsAnswerToAMessageIsTakenForAutomationAgain)
{
    processor.setMidiEnabled (true);
    mapper.setMapping (1, "wet");
    play ({ { 0xb0, 1, 20 } });
    processor.deliverRealtimeChanges();
    host.take();
    processor.setParameter (1, 0.0f);
    EXPECT_EQ (tested.get ("wet"), -48.0);
    EXPECT_EQ (host.take(), "");
}

TEST_F (ProcessMidiTest, MakesPresetsDirtyAtOnceAndTellsLater)
{
    SwitchLog params, mappings;
    processor.getPresetFileManager().addListener (&params);
    processor.getMidiPresetFileManager().addListener (&mappings);
    mapper.setMapping (1, "drive");
    EXPECT_EQ (mappings.take(), "dirty=1") << "on the message thread nothing is put off";
    processor.startLearning ("drive");

    play ({ { 0xb0, 5, 127 }, { 0xb0, 5, 100 } });
    EXPECT_TRUE (processor.getPresetFileManager().isDirty());
    EXPECT_EQ (params.take(), "");
    EXPECT_EQ (mappings.take(), "");

    processor.deliverRealtimeChanges();
    EXPECT_EQ (params.take(), "dirty=1");
    EXPECT_EQ (mappings.take(), "") << "it was dirty";

    processor.getPresetFileManager().removeListener (&params);
    processor.getMidiPresetFileManager().removeListener (&mappings);
}

TEST_F (ProcessMidiTest, HostAutomationTellsOfADirtyPresetLater)
{
    // A host may automate on its audio thread.
    SwitchLog params;
    processor.getPresetFileManager().addListener (&params);
    processor.setParameter (1, 0.0f);
    EXPECT_TRUE (processor.getPresetFileManager().isDirty());
    EXPECT_EQ (params.take(), "");
    EXPECT_TRUE (runMessageLoopUntil ([&] { return params.log.isNotEmpty(); }));
    EXPECT_EQ (params.take(), "dirty=1");
    processor.getPresetFileManager().removeListener (&params);
}

} // namespace
