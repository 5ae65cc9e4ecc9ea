// How vorlo-render says no: one line, a code, and nothing left behind.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/RenderToolTest.h"
#include "tests/support/Signals.h"

#include <csignal>
#include <fstream>
#include <sys/stat.h>

namespace
{

constexpr int failed = 1;
constexpr int usage = 2;

struct FailureCase
{
    const char* arguments;
    int exitCode;
    const char* messageHolds;
};

const FailureCase failureCases[] = {
    // The command line.
    { "", usage, "give a file" },
    { "in.wav", usage, "give a file" },
    { "in.wav out.wav third.wav", usage, "third.wav" },
    { "in.wav out.wav --fast", usage, "--fast" },
    { "in.wav out.wav -q", usage, "-q" },
    { "in.wav out.wav --sync=1", usage, "--sync" },
    { "in.wav out.wav --set", usage, "--set" },
    { "in.wav out.wav --bpm 0", usage, "--bpm" },
    { "in.wav out.wav --bpm -90", usage, "--bpm" },
    { "in.wav out.wav --bpm inf", usage, "--bpm" },
    { "in.wav out.wav --bpm 12O", usage, "12O" },
    { "in.wav out.wav --block 0", usage, "--block" },
    { "in.wav out.wav --block 65537", usage, "--block" },
    { "in.wav out.wav --block 2.5", usage, "--block" },
    { "in.wav out.wav --bits 32", usage, "--bits" },
    { "in.wav out.wav --seed x", usage, "--seed" },
    { "in.wav out.wav --seed 1 --plugin x.so", usage, "--seed" },
    { "in.wav out.wav --plugin=", usage, "--plugin" },
    { "--measure", usage, "--measure" },
    { "--list in.wav", usage, "in.wav" },
    { "--list --measure in.wav", usage, "--list" },
    // Parameters.
    { "in.wav out.wav --set drve=40", usage, "\"drve\"" },
    { "in.wav out.wav --set Drive=40", usage, "\"Drive\"" },
    { "in.wav out.wav --set drive", usage, "\"drive\"" },
    { "in.wav out.wav --set =40", usage, "\"\"" },
    { "in.wav out.wav --set drive=", usage, "0 to 100 %" },
    { "in.wav out.wav --set drive=100.1", usage, "0 to 100 %" },
    { "in.wav out.wav --set drive=-1", usage, "0 to 100 %" },
    { "in.wav out.wav --set drive=40x", usage, "\"40x\"" },
    { "in.wav out.wav --set drive=4O", usage, "\"4O\"" },
    { "in.wav out.wav --set drive=nan", usage, "\"nan\"" },
    { "in.wav out.wav --set drive=1e999", usage, "\"1e999\"" },
    { "in.wav out.wav --set drive=40,5", usage, "\"40,5\"" },
    { "in.wav out.wav --set drive=40Hz", usage, "\"40Hz\"" },
    { "in.wav out.wav --set lowpassFreq=19.9", usage, "20 to 20000 Hz" },
    { "in.wav out.wav --set lfoWaveform=saw", usage, "\"saw\"" },
    { "in.wav out.wav --set lfoWaveform=4", usage, "0 to 3" },
    { "in.wav out.wav --set filterType=0.5", usage, "whole" },
    // Files.
    { "missing.wav out.wav", failed, "missing.wav" },
    { "empty.wav out.wav", failed, "empty.wav" },
    { "text.wav out.wav", failed, "text.wav" },
    { "folder.wav out.wav", failed, "folder.wav" },
    { "pipe.wav out.wav", failed, "pipe.wav" },
    { "three.wav out.wav", failed, "3 channels" },
    { "cut.flac out.wav", failed, "cut.flac" },
    { "in.wav out.mp3", usage, "out.mp3" },
    { "in.wav out", usage, "\"out\"" },
    { "in.wav out.flac --bits 32f", usage, "FLAC" },
    { "in.wav nowhere/out.wav", failed, "nowhere/out.wav" },
    { "in.wav text.wav/out.wav", failed, "text.wav/out.wav" },
    { "in.wav folder.wav", failed, "folder.wav" },
    { "in.wav pipe.wav", failed, "pipe.wav" },
    { "in.wav null.wav", failed, "null.wav" },
    { "--measure missing.wav", failed, "missing.wav" },
    { "--measure text.wav", failed, "text.wav" },
    { "--measure nan.wav", failed, "nan.wav" },
    // Plug-ins.
    { "in.wav out.wav --plugin missing.so", failed, "missing.so" },
    { "in.wav out.wav --plugin text.so", failed, "text.so" },
    { "in.wav out.wav --plugin in.wav", failed, "in.wav" },
    { "in.wav out.wav --plugin empty.vst3", failed, "empty.vst3" },
    { "in.wav out.wav --plugin empty.lv2", failed, "empty.lv2" },
};

class RenderFailuresTest : public RenderToolTest
{
protected:
    RenderFailuresTest()
    {
        auto samples = signals::makeBusySignal (2, 60000, 0.9f);
        AudioFile{ samples }.write (folder.getChild ("in.wav"));
        AudioFile{ signals::makeConstant (3, 1000, 0.1f) }.write (folder.getChild ("three.wav"));
        samples.setSample (0, 3, std::numeric_limits<float>::quiet_NaN());
        AudioFile{ samples, 48000, SF_FORMAT_WAV | SF_FORMAT_FLOAT }.write (
            folder.getChild ("nan.wav"));
        makeCutFile();
        folder.getChild ("empty.wav").create();

        for (const auto* name : { "text.wav", "text.so" })
            folder.getChild (name).replaceWithText ("RIFF, but then nothing that makes sense");

        for (const auto* name : { "folder.wav", "empty.vst3", "empty.lv2" })
            folder.getChild (name).createDirectory();

        mkfifo (folder.getChild ("pipe.wav").getFullPathName().toRawUTF8(), 0600);
        juce::File ("/dev/null").createSymbolicLink (folder.getChild ("null.wav"), false);
        everything = listFolder();
    }

    /** A recording whose second half was lost. */
    void makeCutFile()
    {
        const auto file = folder.getChild ("cut.flac");
        AudioFile{ signals::makeBusySignal (2, 60000, 0.9f), 48000,
                   SF_FORMAT_FLAC | SF_FORMAT_PCM_16 }
            .write (file);
        juce::FileOutputStream stream (file);
        stream.setPosition (file.getSize() / 2);
        stream.truncate();
    }

    static void expectOneLine (const juce::String& errors)
    {
        EXPECT_TRUE (errors.startsWith ("vorlo-render: ")) << errors;
        EXPECT_EQ (errors.indexOfChar ('\n'), errors.length() - 1) << errors;
    }

    juce::String everything;
};

TEST_F (RenderFailuresTest, SaysInOneLineWhatIsWrongAndLeavesNothingBehind)
{
    const auto before = folder.getChild ("in.wav").loadFileAsString();

    for (const auto& c : failureCases)
    {
        SCOPED_TRACE (c.arguments);
        const auto ended = run (c.arguments);
        EXPECT_EQ (ended.exitCode, c.exitCode) << ended.errors;
        EXPECT_TRUE (ended.errors.contains (c.messageHolds)) << ended.errors;
        EXPECT_EQ (ended.output, "");
        expectOneLine (ended.errors);
        ASSERT_EQ (listFolder(), everything);
    }

    EXPECT_EQ (folder.getChild ("in.wav").loadFileAsString(), before);
}

TEST_F (RenderFailuresTest, KeepsTheOldResultWhenTheDiskIsFull)
{
    constexpr int largestFile = 50000; // far less than the results; the process can't write more

    for (const auto* name : { "out.wav", "out.aif", "out.flac" })
        for (const auto* bits : { "16", "24" })
        {
            folder.getChild (name).replaceWithText ("the old result");
            const auto ended =
                run ("in.wav " + juce::String (name) + " --bits " + bits, largestFile);
            EXPECT_EQ (ended.exitCode, failed) << name;
            EXPECT_TRUE (ended.errors.contains (name)) << ended.errors;
            expectOneLine (ended.errors);
            EXPECT_EQ (folder.getChild (name).loadFileAsString(), "the old result");
            folder.getChild (name).deleteFile();
            EXPECT_EQ (listFolder(), everything);
        }
}

TEST_F (RenderFailuresTest, NoticesADiskThatIsFullAtTheVeryEnd)
{
    // The last bytes are written when the encoder closes; cut off one byte after another.
    run ("in.wav out.flac");
    const auto size = static_cast<int> (folder.getChild ("out.flac").getSize());
    EXPECT_EQ (run ("in.wav out.flac", size).exitCode, 0);

    for (const int missing : { 1, 100, 3000 })
        EXPECT_EQ (run ("in.wav out.flac", size - missing).exitCode, failed) << missing;
}

TEST_F (RenderFailuresTest, LeavesNothingBehindWhenInterrupted)
{
    // Hours of silence: it can't be over before the signal comes.
    writeLongSilence (folder.getChild ("long.wav"), 500'000'000);
    linkPlugins();
    everything = listFolder();

    for (const int signal : { SIGINT, SIGTERM, SIGHUP })
        for (const juce::String plugin : { "", " --plugin Vorlo.vst3" })
        {
            ToolProcess process (tool, split ("long.wav out.flac" + plugin), folder.get());

            while (process.isRunning() && listFolder() == everything)
                usleep (1000);

            process.sendSignal (signal);
            const auto ended = process.wait();
            EXPECT_EQ (ended.exitCode, 128 + signal);
            EXPECT_EQ (ended.errors, "vorlo-render: interrupted\n");
            EXPECT_EQ (listFolder(), everything);
        }
}

} // namespace
