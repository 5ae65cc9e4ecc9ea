// Controllers and channels, as MIDI that comes with a block of audio.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/MidiTest.h"

#include <cmath>

namespace
{

using ProcessMidiTest = MidiTest;

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

} // namespace
