// What MIDI and automation leave for the message thread.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/MessageLoop.h"
#include "tests/support/MidiTest.h"

namespace
{

using MidiDeliveryTest = MidiTest;

TEST_F (MidiDeliveryTest, TellsTheHostOncePerMovedParameterAndNotOnTheAudioThread)
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

TEST_F (MidiDeliveryTest, TellsTheHostWhatALinkMovesAlong)
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

TEST_F (MidiDeliveryTest, TheHostsAnswerToAMessageIsTakenForAutomationAgain)
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

TEST_F (MidiDeliveryTest, MakesPresetsDirtyAtOnceAndTellsLater)
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

TEST_F (MidiDeliveryTest, HostAutomationTellsOfADirtyPresetLater)
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
