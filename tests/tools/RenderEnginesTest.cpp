// The parameters of vorlo-render, and its engines against each other.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/RenderToolTest.h"
#include "tests/support/Signals.h"

namespace
{

class RenderEnginesTest : public RenderToolTest
{
protected:
    void writeInput (int numChannels, int sampleRate)
    {
        AudioFile{ signals::makeBusySignal (numChannels, 30011, 0.9f), sampleRate,
                   SF_FORMAT_WAV | SF_FORMAT_PCM_24 }
            .write (folder.getChild ("in.wav"));
    }

    juce::AudioBuffer<float> renderWith (const juce::String& settings)
    {
        return render ("in.wav out.wav --bits 32f " + settings).buffer;
    }
};

const char* const engineCases[] = {
    "",
    "--set drive=80 --set crush=45 --set downsamp=33.3 --set lowpassFreq=1234.5 "
    "--set lowpassRes=0.77 --set dry=-12.5 --set wet=3.1",
    "--set drive=80 --set driveModDepth=90 --set crush=50 --set crushModDepth=30 --set downsamp=40 "
    "--set downsampModDepth=70 --set lfoFreeRate=3.3 --set lfoWaveform=tri --block 100",
    "--sync --bpm 97.3 --set lfoSyncedPeriod=1/8T --set filterFreqModDepth=60 "
    "--set filterResModDepth=50 --set lowpassRes=0.7 --set lfoWaveform=square --block 333",
    "--sync --bpm 133.33 --set lfoFreeRate=4 --set drive=30 --set driveModDepth=100 --block 4096",
    "--set dryWetLink=linked --set dry=-6 --set wet=3 --set filterType=hipass --set hipassFreq=900",
    "--set bypassFilter=bypassed --set bypassDrySignal=1 --set crush=60 --block 1",
};

TEST_F (RenderEnginesTest, EveryPluginFormatGivesTheSamplesOfTheBuiltInEngine)
{
    linkPlugins();

    for (const int numChannels : { 1, 2 })
    {
        writeInput (numChannels, numChannels == 1 ? 44100 : 96000);
        juce::AudioBuffer<float> previous;

        for (const auto* settings : engineCases)
        {
            const auto expected = renderWith (settings);
            EXPECT_EQ (expected.getNumChannels(), numChannels);
            EXPECT_GT (expected.getMagnitude (0, 30011), 0.01f);
            EXPECT_FALSE (areEqual (expected, previous)) << "this setting does nothing";
            previous.makeCopyOf (expected);

            for (const auto& plugin : getPlugins())
                EXPECT_TRUE (areEqual (expected, renderWith (juce::String (settings) + " --plugin "
                                                             + plugin.getFileName())))
                    << plugin.getFileName() << " " << numChannels << " " << settings;
        }
    }
}

TEST_F (RenderEnginesTest, MonoIsOneSideOfStereo)
{
    writeInput (1, 48000);
    auto input = AudioFile::read (folder.getChild ("in.wav"));
    const auto settings = "--set drive=70 --set driveModDepth=50 --set lfoFreeRate=5";
    const auto mono = renderWith (settings);

    juce::AudioBuffer<float> both (2, input.buffer.getNumSamples());
    both.copyFrom (0, 0, input.buffer, 0, 0, both.getNumSamples());
    both.copyFrom (1, 0, input.buffer, 0, 0, both.getNumSamples());
    AudioFile{ both, 48000, SF_FORMAT_WAV | SF_FORMAT_FLOAT }.write (folder.getChild ("in.wav"));
    auto stereo = renderWith (settings);

    for (int channel = 0; channel < 2; ++channel)
    {
        juce::AudioBuffer<float> side (stereo.getArrayOfWritePointers() + channel, 1,
                                       stereo.getNumSamples());
        EXPECT_TRUE (areEqual (mono, side)) << channel;
    }
}

struct SameSettings
{
    const char* one;
    const char* other;
};

/** Two ways to say the same. */
const SameSettings sameSettings[] = {
    { "--sync", "--set lfoSyncOrFree=sync" },
    { "--set lfoWaveform=SQUARE", "--set lfoWaveform=1" },
    { "--set dry=-inf", "--set dry=-48dB" },
    { "--set lowpassFreq=2500", "--set lowpassFreq=+2.5e3Hz" },
    { "--set drive=40", "--set drive=90 --set drive=40%" },
    { "--bpm 120", "" },
    { "--block 512", "" },
    // The order of the settings makes no difference, and what is said holds: the sync takes the
    // given period, not one of its own, and the link moves no gain.
    { "--set lfoSyncedPeriod=1/16 --sync", "--sync --set lfoSyncedPeriod=1/16" },
    { "--set dryWetLink=linked --set dry=0 --set wet=-20", "--set dry=0 --set wet=-20" },
    { "--set dryWetLink=linked --set dry=0", "--set dry=0" },
};

/** Two settings that must be heard as different. */
const SameSettings differentSettings[] = {
    { "--sync --set lfoSyncedPeriod=1/16", "--sync --set lfoSyncedPeriod=1/8" },
    { "--sync --set lfoSyncedPeriod=1/16", "--sync --set lfoSyncedPeriod=1/16 --bpm 90" },
    { "--set lfoFreeRate=5", "--set lfoFreeRate=5 --set lfoWaveform=square" },
    { "--set dry=0", "--set dry=-6" },
};

TEST_F (RenderEnginesTest, TakesValuesInAnyFormAndOrder)
{
    writeInput (2, 48000);
    const juce::String modulated = "--set driveModDepth=90 --set filterFreqModDepth=80 ";
    const auto get = [&] (const char* settings)
    {
        const juce::String given (settings);
        return renderWith (modulated + (given.contains ("drive=") ? "" : "--set drive=60 ")
                           + given);
    };

    for (const auto& pair : sameSettings)
        EXPECT_TRUE (areEqual (get (pair.one), get (pair.other)))
            << pair.one << " | " << pair.other;

    for (const auto& pair : differentSettings)
        EXPECT_FALSE (areEqual (get (pair.one), get (pair.other)))
            << pair.one << " | " << pair.other;
}

TEST_F (RenderEnginesTest, TheSyncedLfoFollowsTheTempo)
{
    // A constant, heard through a square that opens and closes the quantiser: at 150 bpm an eighth
    // lasts 0.2 s, so that the sound repeats itself after 9600 frames and is its opposite after half.
    AudioFile{ signals::makeConstant (1, 40000, 0.3f), 48000, SF_FORMAT_WAV | SF_FORMAT_FLOAT }
        .write (folder.getChild ("in.wav"));
    const auto output = renderWith ("--sync --bpm 150 --set lfoSyncedPeriod=1/8 --set crush=90 "
                                    "--set crushModDepth=100 --set lfoWaveform=square "
                                    "--set bypassFilter=1 --set dry=-inf --set wet=0 --block 480");

    for (const int i : { 9600 + 2400, 9600 + 7200, 19200 + 2400 })
    {
        EXPECT_NEAR (output.getSample (0, i), output.getSample (0, i + 9600), 1e-6f);
        EXPECT_GT (std::abs (output.getSample (0, i) - output.getSample (0, i + 4800)), 0.01f);
    }

    EXPECT_NEAR (output.getSample (0, 12000), 0.3f, 1e-4f) << "high wave: the quantiser is off";
}

TEST_F (RenderEnginesTest, ListsWhatCanBeSet)
{
    const auto ended = run ("--list");
    EXPECT_EQ (ended.exitCode, 0);
    EXPECT_EQ (ended.errors, "");
    auto lines = juce::StringArray::fromLines (ended.output.trimEnd());
    EXPECT_EQ (lines.size(), 23);

    for (auto& line : lines)
        while (line.contains ("  "))
            line = line.replace ("  ", " ");

    for (const auto* expected :
         { "dry Dry -48 to 18 dB default -3 -48 = -inf", "drive Drive 0 to 100 % default 0",
           "lowpassFreq Lowpass Freq 20 to 20000 Hz default 8000",
           "lfoWaveform LFO Waveform 0 to 3 default sine 0 = sine, 1 = square, 2 = tri, 3 = rand",
           "dryWetLink Dry Wet Link 0 to 1 default unlinked 0 = unlinked, 1 = linked" })
        EXPECT_TRUE (lines.contains (expected)) << expected;

    EXPECT_TRUE (ended.output.contains ("default 1/4")) << "of the synced period";
    EXPECT_TRUE (ended.output.contains (", 22 = 1/8, 23 = 1/8T, "));

    // Every id in the list can be set to its own default.
    writeInput (2, 48000);
    const auto expected = renderWith ("");
    juce::String all;

    for (const auto& line : lines)
        all << " --set " << line.upToFirstOccurrenceOf (" ", false, false) << "="
            << line.fromFirstOccurrenceOf ("default ", false, false)
                   .upToFirstOccurrenceOf (" ", false, false);

    EXPECT_TRUE (areEqual (expected, renderWith (all)));
}

TEST_F (RenderEnginesTest, TellsAboutItself)
{
    EXPECT_EQ (run ("--version").output, "vorlo-render 1.1.0\n");
    const auto help = run ("in.wav --help --nonsense");
    EXPECT_EQ (help.exitCode, 0);

    for (const auto* option : { "IN OUT", "--set", "--bpm", "--sync", "--block", "--bits",
                                "--plugin", "--list", "--measure", "--seed", "--version" })
        EXPECT_TRUE (help.output.contains (option)) << option;
}

} // namespace
