// Learning, and the switches that MIDI has.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/MidiTest.h"

namespace
{

using MidiLearnTest = MidiTest;

TEST_F (MidiLearnTest, LearnsTheLastControllerThatMoves)
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

TEST_F (MidiLearnTest, LearnsFromItsChannelOnly)
{
    processor.setMidiChannel (2);
    processor.startLearning ("crush");
    play ({ { 0xb0, 20, 64 } });
    EXPECT_EQ (mapper.getMapping ("crush"), -1);
    play ({ { 0xb1, 21, 64 } });
    EXPECT_EQ (mapper.getMapping ("crush"), 21);
}

TEST_F (MidiLearnTest, CountsTheStartsOfLearning)
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

TEST_F (MidiLearnTest, TellsOfItsSwitches)
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

} // namespace
