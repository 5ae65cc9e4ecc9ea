// Program changes that load presets, from real files.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/presets/PresetFileManager.h"
#include "tests/support/MessageLoop.h"
#include "tests/support/MidiEvents.h"
#include "tests/support/TemporaryFolder.h"

#include "product/VorloProcessor.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

class MidiProgramsTest : public testing::Test
{
protected:
    /** Writes a preset whose value of drive tells it from the others. */
    void write (const juce::String& path, int drive)
    {
        writeText (path, "<Vorlo><PARAMS drive=\"" + juce::String (drive) + "\"/></Vorlo>");
    }

    void writeText (const juce::String& path, const juce::String& text)
    {
        const auto file = programs.getChildFile (path);
        ASSERT_TRUE (file.getParentDirectory().createDirectory());
        ASSERT_TRUE (file.replaceWithText (text));
    }

    std::unique_ptr<VorloProcessor> start()
    {
        auto processor =
            std::make_unique<VorloProcessor> (zembra::FolderRoots::inside (folder.get()));
        processor->prepareToPlay (48000.0, 64);
        processor->setMidiEnabled (true);
        processor->setMidiProgramChangeEnabled (true);
        return processor;
    }

    static void play (VorloProcessor& processor, MidiMessages messages)
    {
        auto midi = makeMidi (messages);
        juce::AudioBuffer<float> buffer (2, 64);
        buffer.clear();
        processor.processBlock (buffer, midi);
    }

    static int getDrive (VorloProcessor& processor)
    {
        return juce::roundToInt (processor.getParamSet().getParam ("drive")->getValue());
    }

    /** The value of drive after a program change, with the message thread's share done. */
    static int getDriveOf (VorloProcessor& processor, int program)
    {
        processor.getParamSet().getParam ("drive")->setValue (0.0, zembra::sourceEditor);
        play (processor, { { 0xc0, static_cast<juce::uint8> (program) } });
        processor.deliverRealtimeChanges();
        return getDrive (processor);
    }

    TemporaryFolder folder;
    const juce::File programs = folder.getChild ("user/Ombrel/Vorlo/presets/MIDI Programs");
};

TEST_F (MidiProgramsTest, NumbersTheFilesInTheOrderOfTheUsersPresets)
{
    write ("one.ompreset", 11);
    write ("two.ompreset", 12);
    write ("bank/three.ompreset", 13);
    write ("bank/inner/four.ompreset", 14);
    writeText ("broken.ompreset", "<Vorlo><PARAMS drive=\"99\">");
    writeText ("empty.ompreset", "");
    write (".hidden.ompreset", 98);
    write ("other.xml", 97);
    const auto processor = start();

    // The programs' folder lies in that of the user's presets, and holds all there are.
    const auto listed = processor->getPresetFileManager().getUserPresets();
    ASSERT_EQ (listed.size(), 4);
    std::set<int> seen;

    for (int program = 0; program < 4; ++program)
    {
        const auto drive = getDriveOf (*processor, program);
        seen.insert (drive);
        const juce::File file (listed[program]);
        EXPECT_TRUE (file.loadFileAsString().contains (juce::String (drive))) << program;
        EXPECT_EQ (processor->getPresetFileManager().getCurrentPresetPath(), listed[program]);
        EXPECT_FALSE (processor->getPresetFileManager().isDirty());
    }

    EXPECT_EQ (seen, (std::set<int>{ 11, 12, 13, 14 }));

    for (const auto program : { 4, 5, 127, 255 })
        EXPECT_EQ (getDriveOf (*processor, program), 0) << "no such program";
}

TEST_F (MidiProgramsTest, LoadsOnTheMessageThreadTheLastProgramThatCame)
{
    write ("one.ompreset", 11);
    write ("two.ompreset", 12);
    const auto processor = start();
    const auto last = getDriveOf (*processor, 1);
    getDriveOf (*processor, 0);

    play (*processor, { { 0xc0, 0 }, { 0xc0, 1 }, { 0xc0, 0 }, { 0xc0, 1 }, { 0xc0, 2 } });
    EXPECT_NE (getDrive (*processor), last) << "not on the audio thread";
    EXPECT_TRUE (runMessageLoopUntil ([&] { return getDrive (*processor) == last; }));

    processor->getParamSet().getParam ("drive")->setValue (50.0, zembra::sourceEditor);
    processor->deliverRealtimeChanges();
    EXPECT_EQ (getDrive (*processor), 50) << "once";
}

TEST_F (MidiProgramsTest, LooksAtTheSwitchesAndNotAtTheChannel)
{
    write ("one.ompreset", 11);
    const auto processor = start();
    processor->setMidiChannel (3);
    play (*processor, { { 0xc3, 0 } });
    processor->deliverRealtimeChanges();
    EXPECT_EQ (getDrive (*processor), 11);

    processor->setMidiProgramChangeEnabled (false);
    EXPECT_EQ (getDriveOf (*processor, 0), 0);
    processor->setMidiProgramChangeEnabled (true);
    processor->setMidiEnabled (false);
    EXPECT_EQ (getDriveOf (*processor, 0), 0);
    processor->setMidiEnabled (true);
    play (*processor, { { 0xc0 }, { 0xd0, 0 } });
    processor->deliverRealtimeChanges();
    EXPECT_EQ (getDrive (*processor), 0) << "half a program change";
    EXPECT_EQ (getDriveOf (*processor, 0), 11);
}

TEST_F (MidiProgramsTest, MakesTheFolderAndDoesNothingWhileItIsEmpty)
{
    const auto processor = start();
    EXPECT_TRUE (programs.isDirectory());
    EXPECT_EQ (getDriveOf (*processor, 0), 0);
}

TEST_F (MidiProgramsTest, NeedsNoDiskAndLeavesFrozenParametersAlone)
{
    write ("one.ompreset", 11);
    const auto processor = start();
    EXPECT_TRUE (programs.getChildFile ("one.ompreset").deleteFile());
    EXPECT_EQ (getDriveOf (*processor, 0), 11) << "the values come from the tree that was parsed";
    EXPECT_EQ (processor->getPresetFileManager().getCurrentPresetPath(), "")
        << "but a file that is gone isn't the current preset";

    processor->getParamSet().getParam ("drive")->changeFrozen (true);
    EXPECT_EQ (getDriveOf (*processor, 0), 0);
}

TEST_F (MidiProgramsTest, AreReadOnceForAllInstancesOfAProcess)
{
    write ("one.ompreset", 11);
    auto first = start();
    write ("two.ompreset", 12);
    auto second = start();
    EXPECT_EQ (second->getPresetFileManager().getUserPresets().size(), 2);
    EXPECT_EQ (getDriveOf (*second, 0), 11);
    EXPECT_EQ (getDriveOf (*second, 1), 0) << "unknown to this process";

    first.reset();
    EXPECT_EQ (getDriveOf (*second, 0), 11) << "the table lives with the last instance";
    second.reset();
    const auto third = start();
    EXPECT_EQ (getDriveOf (*third, 0) + getDriveOf (*third, 1), 23) << "and then starts anew";
}

TEST_F (MidiProgramsTest, EndOnATreeOfLinksThatLeadsBack)
{
    write ("bank/one.ompreset", 11);
    ASSERT_TRUE (programs.getParentDirectory().createSymbolicLink (
        programs.getChildFile ("bank/back"), false));
    ASSERT_TRUE (programs.createSymbolicLink (programs.getChildFile ("round"), false));
    const auto processor = start();
    EXPECT_EQ (getDriveOf (*processor, 0), 11);
    EXPECT_EQ (getDriveOf (*processor, 1), 0);
}

} // namespace
