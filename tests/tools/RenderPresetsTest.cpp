// The presets, states and MIDI files of vorlo-render.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/midi/ParamsMidiMapper.h"
#include "tests/support/RenderToolTest.h"
#include "tests/support/Signals.h"
#include "tests/support/TestProcessor.h"

namespace
{

class RenderPresetsTest : public RenderToolTest
{
protected:
    RenderPresetsTest()
    {
        home = homeFolder.get();
        AudioFile{ signals::makeSine (2, numFrames, 333.0, sampleRate, 0.7f), sampleRate,
                   SF_FORMAT_WAV | SF_FORMAT_FLOAT }
            .write (folder.getChild ("in.wav"));
    }

    juce::AudioBuffer<float> renderWith (const juce::String& options)
    {
        return render ("in.wav out.wav --block 100 " + options).buffer;
    }

    static void writePreset (const juce::File& file, const juce::String& attributes)
    {
        file.create();
        file.replaceWithText ("<Vorlo><PARAMS " + attributes + "/></Vorlo>");
    }

    void writeUserPreset (const juce::String& place, const juce::String& attributes) const
    {
        writePreset (homeFolder.getChild (".config/Ombrel/Vorlo/presets/" + place + ".ompreset"),
                     attributes);
    }

    /** Writes the chunk of a processor to "song.state". */
    void writeState (TestProcessor& vorlo) const
    {
        juce::MemoryBlock chunk;
        vorlo.processor.getStateInformation (chunk);
        folder.getChild ("song.state").replaceWithData (chunk.getData(), chunk.getSize());
    }

    /** Writes "song.mid": one event at beat 2, which comes after a second, since the first beat is
        at 60 bpm and lasts that long, and the second at 600000 bpm lasts no time.
    */
    void writeMidi (const juce::MidiMessage& event) const
    {
        juce::MidiMessageSequence tempo, track;
        tempo.addEvent (juce::MidiMessage::tempoMetaEvent (1'000'000), 0.0);
        tempo.addEvent (juce::MidiMessage::tempoMetaEvent (100), 480.0);
        track.addEvent (event, 960.0);
        juce::MidiFile file;
        file.setTicksPerQuarterNote (480);
        file.addTrack (tempo);
        file.addTrack (track);
        const auto target = folder.getChild ("song.mid");
        target.deleteFile(); // a stream would append
        juce::FileOutputStream stream (target);
        EXPECT_TRUE (file.writeTo (stream));
    }

    /** The first frame in which two results differ; the length if there is none. */
    static int findDifference (const juce::AudioBuffer<float>& a, const juce::AudioBuffer<float>& b)
    {
        for (int i = 0; i < numFrames; ++i)
            if (a.getSample (0, i) != b.getSample (0, i))
                return i;

        return numFrames;
    }

    static constexpr int sampleRate = 8000;
    static constexpr int numFrames = 2 * sampleRate;
    TemporaryFolder homeFolder;
};

TEST_F (RenderPresetsTest, APresetSoundsAsItsValuesDo)
{
    const juce::String attributes = "drive=\"60\" crush=\"30\" dry=\"-20\" dryWetLink=\"1\"";
    const juce::String values = "--set drive=60 --set crush=30 --set dry=-20 --set dryWetLink=1";
    writePreset (folder.getChild ("a.ompreset"), attributes);
    writePreset (folder.getChild ("a.xml"), attributes);
    writeUserPreset ("Zq Bank/zqname", attributes);
    writeUserPreset ("zqother", "drive=\"5\"");
    homeFolder.getChild (".config/Ombrel/Vorlo/presets/Zq Bank")
        .moveFileTo (homeFolder.getChild (".config/Ombrel/Vorlo/presets/ZqBank"));
    linkPlugins();
    const auto expected = renderWith (values);
    EXPECT_FALSE (areEqual (expected, renderWith ("")));

    for (const auto* options :
         { "--preset a.ompreset", "--preset a.xml", "--preset zqname", "--preset=ZqBank/zqname",
           "--preset a.ompreset --plugin Vorlo.vst3", "--preset zqname --plugin Vorlo.lv2",
           "--preset zqother --set drive=60 --set crush=30 --set dry=-20 --set dryWetLink=1" })
        EXPECT_TRUE (areEqual (expected, renderWith (options))) << options;

    // What is said holds: the link that the preset switches on moves no other gain.
    EXPECT_TRUE (areEqual (renderWith ("--preset a.ompreset --set dry=0"),
                           renderWith (values + " --set dry=0")));

    const auto listed = juce::StringArray::fromLines (run ("--presets").output);
    EXPECT_TRUE (listed.contains ("user: ZqBank/zqname") && listed.contains ("user: zqother"));
}

TEST_F (RenderPresetsTest, WhatIsSavedComesBack)
{
    const auto expected = renderWith ("--set drive=45.5 --set wet=-7 --save-preset b.ompreset");
    EXPECT_EQ (run ("--set drive=45.5 --set wet=-7 --save-preset c.ompreset").exitCode, 0);
    EXPECT_TRUE (
        folder.getChild ("b.ompreset").hasIdenticalContentTo (folder.getChild ("c.ompreset")));
    EXPECT_TRUE (areEqual (expected, renderWith ("--preset c.ompreset")));

    // Over itself, and from a state under a preset under a value.
    TestProcessor vorlo;
    vorlo.set ("crush", 33.0);
    vorlo.set ("drive", 1.0);
    writeState (vorlo);
    writePreset (folder.getChild ("c.ompreset"), "drive=\"70\"");
    const juce::String all = "--state song.state --preset c.ompreset --set wet=-9";
    const auto mixed = renderWith (all);
    EXPECT_EQ (run (all + " --save-preset c.ompreset").exitCode, 0);
    EXPECT_TRUE (areEqual (mixed, renderWith ("--preset c.ompreset")));
    EXPECT_FALSE (areEqual (mixed, expected));
}

TEST_F (RenderPresetsTest, AStateSoundsAsTheInstanceItWasSavedFrom)
{
    TestProcessor vorlo;
    vorlo.set ("drive", 64.0);
    vorlo.set ("lowpassFreq", 1500.0);
    writeState (vorlo);
    linkPlugins();
    const auto expected = renderWith ("--set drive=64 --set lowpassFreq=1500");

    for (const auto* options : { "--state song.state", "--state song.state --plugin Vorlo.vst3" })
        EXPECT_TRUE (areEqual (expected, renderWith (options))) << options;
}

TEST_F (RenderPresetsTest, AControllerMovesItsParameterAtItsTime)
{
    TestProcessor vorlo;
    vorlo.processor.getParamsMidiMapper().setMapping (20, "drive");
    writeState (vorlo);
    const auto still = renderWith ("--state song.state --block 100");
    writeMidi (juce::MidiMessage::controllerEvent (1, 20, 127));

    // A block takes its events over at its start, and this one starts with the event.
    const auto moved = renderWith ("--state song.state --midi song.mid");
    const auto difference = findDifference (still, moved);
    EXPECT_GE (difference, sampleRate);
    EXPECT_LT (difference, sampleRate + 100);

    // Without a map, with another controller or on another channel nothing moves.
    EXPECT_TRUE (areEqual (renderWith ("--midi song.mid"), renderWith ("")));
    writeMidi (juce::MidiMessage::controllerEvent (1, 21, 127));
    EXPECT_TRUE (areEqual (still, renderWith ("--state song.state --midi song.mid")));
    writeMidi (juce::MidiMessage::controllerEvent (1, 20, 127));
    vorlo.processor.setMidiChannel (2);
    writeState (vorlo);
    EXPECT_TRUE (areEqual (still, renderWith ("--state song.state --midi song.mid")));
}

TEST_F (RenderPresetsTest, AProgramChangeLoadsItsPresetAfterItsBlock)
{
    writeUserPreset ("MIDI Programs/one", "drive=\"90\"");
    writeMidi (juce::MidiMessage::programChange (1, 0));
    const auto difference = findDifference (renderWith (""), renderWith ("--midi song.mid"));
    EXPECT_GE (difference, sampleRate + 100);
    EXPECT_LT (difference, sampleRate + 200);
    writeMidi (juce::MidiMessage::programChange (1, 1));
    EXPECT_TRUE (areEqual (renderWith (""), renderWith ("--midi song.mid"))) << "no such program";
}

struct Refusal
{
    const char* arguments;
    int exitCode;
    const char* messageHolds;
};

const Refusal refusals[] = {
    { "in.wav out.wav --preset zqtwice", 1, "ZqA/zqtwice.ompreset\", \"" },
    { "in.wav out.wav --preset zqmissing", 1, "\"zqmissing\"" },
    { "in.wav out.wav --preset zqbroken", 1, "\"zqbroken\"" },
    { "in.wav out.wav --preset bad.ompreset", 1, "no valid preset" },
    { "in.wav out.wav --preset in.wav", 1, "no valid preset" },
    { "in.wav out.wav --preset=", 2, "--preset" },
    { "in.wav out.wav --state bad.ompreset", 1, "no saved state" },
    { "in.wav out.wav --state missing", 1, "\"missing\"" },
    { "in.wav out.wav --state .", 1, "no regular file" },
    { "in.wav out.wav --midi in.wav", 1, "no MIDI file" },
    { "in.wav out.wav --midi x.mid --plugin Vorlo.so", 2, "--midi" },
    { "--midi x.mid --save-preset x.ompreset", 2, "--midi" },
    { "in.wav --save-preset x.ompreset", 2, "give a file" },
    { "--save-preset x.txt", 2, ".ompreset" },
    { "--save-preset missing/x.ompreset", 1, "missing/x.ompreset" },
    { "in.wav out.wav --save-preset missing/x.ompreset", 1, "missing/x.ompreset" },
    { "--presets in.wav", 2, "in.wav" },
    { "--presets --list", 2, "--presets" },
};

TEST_F (RenderPresetsTest, WhatIsRefusedLeavesNothingBehind)
{
    writeUserPreset ("ZqA/zqtwice", "drive=\"1\"");
    writeUserPreset ("ZqB/zqtwice", "drive=\"2\"");
    const auto broken = homeFolder.getChild (".config/Ombrel/Vorlo/presets/zqbroken.ompreset");
    EXPECT_TRUE (broken.replaceWithText ("<Vorlo><PARAMS"));
    EXPECT_TRUE (folder.getChild ("bad.ompreset").replaceWithText ("<Vorlo><PARAMS"));
    const auto everything = listFolder();

    for (const auto& refusal : refusals)
    {
        const auto ended = run (refusal.arguments);
        EXPECT_EQ (ended.exitCode, refusal.exitCode) << refusal.arguments << ended.errors;
        EXPECT_TRUE (ended.errors.contains (refusal.messageHolds)) << ended.errors;
        EXPECT_EQ (ended.errors.indexOfChar ('\n'), ended.errors.length() - 1) << ended.errors;
        EXPECT_EQ (ended.output, "");
        EXPECT_EQ (listFolder(), everything) << refusal.arguments;
    }

    EXPECT_EQ (run ("in.wav out.wav --preset ZqA/zqtwice").exitCode, 0);
}

} // namespace
