// The files that vorlo-render reads and writes.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/RenderToolTest.h"
#include "tests/support/Signals.h"

namespace
{

/** Leaves the dry signal alone, but for a last bit of single precision: a host's value for 0 dB is
    rounded. The glides from the processor's start are over after 256 frames.
*/
const juce::String passThrough = " --set dry=0 --set bypassWetSignal=1 --set bypassFilter=1";

constexpr int numGlideFrames = 256;

/** Whether samples are the nearest that a number of bits has; 32 stands for floating point. */
bool areNearest (const juce::AudioBuffer<float>& written, const juce::AudioBuffer<float>& exact,
                 int bits)
{
    if (bits == 32)
        return areEqual (written, exact);

    const auto fullScale = std::exp2 (bits - 1);

    for (int channel = 0; channel < exact.getNumChannels(); ++channel)
        for (int i = 0; i < exact.getNumSamples(); ++i)
        {
            const auto step = static_cast<double> (written.getSample (channel, i)) * fullScale;
            const auto wanted = static_cast<double> (exact.getSample (channel, i)) * fullScale;

            if (std::abs (juce::jlimit (-fullScale, fullScale - 1.0, wanted) - step) > 0.5)
                return false;
        }

    return written.getNumSamples() == exact.getNumSamples();
}

int getBits (int format)
{
    const auto subtype = format & SF_FORMAT_SUBMASK;
    return subtype == SF_FORMAT_PCM_16 ? 16 : subtype == SF_FORMAT_PCM_24 ? 24 : 32;
}

class RenderFilesTest : public RenderToolTest
{
protected:
    static AudioFile makeFile (int numChannels, int format, int sampleRate = 48000)
    {
        auto buffer = signals::makeBusySignal (numChannels, 20011, 0.9f);
        buffer.clear (0, numGlideFrames);
        return { buffer, sampleRate, format };
    }
};

struct FormatCase
{
    const char* input;
    int inputFormat;
    const char* output;
    const char* options;
    int expectedFormat;
};

const FormatCase formatCases[] = {
    { "a.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16, "b.wav", "", SF_FORMAT_WAV | SF_FORMAT_PCM_16 },
    { "a.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_24, "b.WAV", "", SF_FORMAT_WAV | SF_FORMAT_PCM_24 },
    { "a.wav", SF_FORMAT_WAV | SF_FORMAT_FLOAT, "b.wav", "", SF_FORMAT_WAV | SF_FORMAT_FLOAT },
    { "a.aif", SF_FORMAT_AIFF | SF_FORMAT_PCM_16, "b.aif", "", SF_FORMAT_AIFF | SF_FORMAT_PCM_16 },
    { "a.aif", SF_FORMAT_AIFF | SF_FORMAT_PCM_24, "b.aiff", "", SF_FORMAT_AIFF | SF_FORMAT_PCM_24 },
    { "a.flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_16, "b.flac", "",
      SF_FORMAT_FLAC | SF_FORMAT_PCM_16 },
    { "a.flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_24, "b.flac", "",
      SF_FORMAT_FLAC | SF_FORMAT_PCM_24 },
    // What an input has and the result can't, or what none of the choices is, becomes 24 bits.
    { "a.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_U8, "b.wav", "", SF_FORMAT_WAV | SF_FORMAT_PCM_24 },
    { "no-extension", SF_FORMAT_FLAC | SF_FORMAT_PCM_16, "b.wav", "--bits 24",
      SF_FORMAT_WAV | SF_FORMAT_PCM_24 },
    { "a.flac", SF_FORMAT_FLAC | SF_FORMAT_PCM_24, "b.aif", "--bits 32f",
      SF_FORMAT_AIFF | SF_FORMAT_FLOAT },
    { "a.wav", SF_FORMAT_WAV | SF_FORMAT_PCM_16, "b.flac", "--bits=24",
      SF_FORMAT_FLAC | SF_FORMAT_PCM_24 },
};

TEST_F (RenderFilesTest, KeepsEveryBitInEveryFormat)
{
    for (const auto& c : formatCases)
        for (const int numChannels : { 1, 2 })
        {
            SCOPED_TRACE (juce::String (c.input) + " " + c.output + " " + c.options + " "
                          + juce::String (numChannels));
            makeFile (numChannels, c.inputFormat, 44100).write (folder.getChild (c.input));
            const auto input = AudioFile::read (folder.getChild (c.input));
            const auto output = render (
                juce::String (c.input) + " " + c.output + " " + c.options + passThrough, c.output);

            EXPECT_EQ (output.format & (SF_FORMAT_TYPEMASK | SF_FORMAT_SUBMASK), c.expectedFormat);
            EXPECT_EQ (output.sampleRate, 44100);

            // The same samples in floating point, in and out, show what there was to round.
            AudioFile{ input.buffer, 44100, SF_FORMAT_WAV | SF_FORMAT_FLOAT }.write (
                folder.getChild ("float.wav"));
            const auto unrounded = render ("float.wav float.wav" + passThrough, "float.wav").buffer;
            EXPECT_TRUE (areNearest (output.buffer, unrounded, getBits (c.expectedFormat)));

            if (getBits (c.inputFormat) == 16 && getBits (c.expectedFormat) == 16)
            {
                EXPECT_TRUE (areEqual (output.buffer, input.buffer));
            }
        }
}

TEST_F (RenderFilesTest, RoundsToTheNearestAndClipsWhatIsTooLoud)
{
    // Steps of 16 bits: 0.49 and 0.51 of one, both ends, and beyond.
    constexpr auto step = 1.0f / 32768.0f;
    const float samples[] = { 0.49f * step, 0.51f * step, -0.51f * step, 1.0f - step, -1.0f, 1.0f };
    const float expected[] = { 0.0f, step, -step, 1.0f - step, -1.0f, 1.0f - step };
    AudioFile file{ juce::AudioBuffer<float> (1, numGlideFrames + 6), 48000,
                    SF_FORMAT_WAV | SF_FORMAT_FLOAT };
    file.buffer.clear();
    file.buffer.copyFrom (0, numGlideFrames, samples, 6);
    file.write (folder.getChild ("in.wav"));

    const auto output = render ("in.wav out.wav --bits 16" + passThrough).buffer;
    ASSERT_EQ (output.getNumSamples(), numGlideFrames + 6);

    for (int i = 0; i < 6; ++i)
        EXPECT_EQ (output.getSample (0, numGlideFrames + i), expected[i]) << i;
}

TEST_F (RenderFilesTest, KeepsRateAndLengthWhateverTheyAre)
{
    for (const int sampleRate : { 8000, 48000, 192000 })
        for (const int numFrames : { 0, 1, 511, 512, 513, 8192 })
        {
            AudioFile{ signals::makeConstant (2, numFrames, 0.1f), sampleRate, SF_FORMAT_WAV | 2 }
                .write (folder.getChild ("in.wav"));
            const auto output = render ("in.wav out.wav");
            EXPECT_EQ (output.sampleRate, sampleRate);
            EXPECT_EQ (output.buffer.getNumSamples(), numFrames);
        }
}

TEST_F (RenderFilesTest, BlockSizeDoesNotChangeTheSound)
{
    // While the LFO is free, only the first glide of the gains knows of blocks.
    constexpr int numFirstFrames = 5000;
    makeFile (2, SF_FORMAT_WAV | SF_FORMAT_PCM_24).write (folder.getChild ("in.wav"));
    const juce::String settings = " --bits 32f --set drive=60 --set crush=40"
                                  " --set downsamp=35 --set lowpassFreq=2500 --set lowpassRes=0.6"
                                  " --set lfoFreeRate=3 --set filterFreqModDepth=50";
    const auto get = [&] (const juce::String& options)
    {
        const auto all = render ("in.wav out.wav" + options + settings).buffer;
        juce::AudioBuffer<float> rest (2, all.getNumSamples() - numFirstFrames);

        for (int channel = 0; channel < 2; ++channel)
            rest.copyFrom (channel, 0, all, channel, numFirstFrames, rest.getNumSamples());

        return rest;
    };
    const auto expected = get ("");
    EXPECT_GT (expected.getMagnitude (0, expected.getNumSamples()), 0.1f);

    for (const auto* block : { "1", "64", "1000", "30000" })
        EXPECT_TRUE (areEqual (expected, get (" --block " + juce::String (block)))) << block;
}

TEST_F (RenderFilesTest, RepeatsItselfToTheByte)
{
    makeFile (2, SF_FORMAT_WAV | SF_FORMAT_FLOAT).write (folder.getChild ("in.wav"));
    const juce::String settings = " --set drive=50 --set driveModDepth=80 --set lfoFreeRate=9"
                                  " --set lfoWaveform=rand --seed ";

    for (const auto* extension : { ".wav", ".aif" })
    {
        for (const auto* seed : { "1", "2" })
        {
            render ("in.wav " + juce::String (seed) + extension + settings + seed);
            render ("in.wav again" + juce::String (seed) + extension + settings + seed);
            EXPECT_TRUE (folder.getChild (seed + juce::String (extension))
                             .hasIdenticalContentTo (
                                 folder.getChild ("again" + juce::String (seed) + extension)));
        }

        EXPECT_FALSE (
            folder.getChild ("1" + juce::String (extension))
                .hasIdenticalContentTo (folder.getChild ("2" + juce::String (extension))));
    }
}

TEST_F (RenderFilesTest, WritesOverItsInputAndThroughALink)
{
    makeFile (1, SF_FORMAT_WAV | SF_FORMAT_PCM_16).write (folder.getChild ("in.wav"));
    const auto input = AudioFile::read (folder.getChild ("in.wav"));
    const auto expected = render ("in.wav out.wav --set drive=70");
    EXPECT_FALSE (areEqual (expected.buffer, input.buffer));

    folder.getChild ("in.wav").createSymbolicLink (folder.getChild ("link.wav"), false);
    const auto output = render ("in.wav link.wav --set drive=70", "in.wav");
    EXPECT_TRUE (areEqual (output.buffer, expected.buffer));
    EXPECT_TRUE (folder.getChild ("link.wav").isSymbolicLink());

    // A second time, from the result to itself.
    EXPECT_FALSE (
        areEqual (render ("in.wav in.wav --set drive=70", "in.wav").buffer, expected.buffer));
    EXPECT_EQ (listFolder(), "in.wav link.wav out.wav");
}

TEST_F (RenderFilesTest, ReadsAStreamWhoseHeaderDoesNotKnowItsLength)
{
    makeFile (2, SF_FORMAT_WAV | SF_FORMAT_PCM_16).write (folder.getChild ("in.wav"));
    const auto expected = AudioFile::read (folder.getChild ("in.wav"));
    {
        // As written into a pipe: both lengths in the header are the largest there are.
        juce::FileOutputStream stream (folder.getChild ("in.wav"));
        stream.setPosition (4);
        stream.writeInt (-1);
        stream.setPosition (40);
        stream.writeInt (-1);
    }
    EXPECT_TRUE (areEqual (render ("in.wav out.wav" + passThrough).buffer, expected.buffer));
}

TEST_F (RenderFilesTest, MeasuresLevelPeakAndBrightness)
{
    const auto measure = [this] (const juce::AudioBuffer<float>& buffer, int sampleRate)
    {
        AudioFile{ buffer, sampleRate, SF_FORMAT_WAV | SF_FORMAT_FLOAT }.write (
            folder.getChild ("in.wav"));
        const auto ended = run ("--measure in.wav");
        EXPECT_EQ (ended.exitCode, 0) << ended.errors;
        EXPECT_TRUE (ended.output.endsWith ("\n"));
        return split (ended.output.trim());
    };

    // A sine of amplitude 1/2: peak -6.02 dB, RMS 3.01 dB below.
    const auto sine = measure (signals::makeSine (2, 100000, 1000.0, 48000.0, 0.5f), 48000);
    ASSERT_EQ (sine.size(), 3);
    EXPECT_NEAR (sine[0].getDoubleValue(), -9.03, 0.02);
    EXPECT_NEAR (sine[1].getDoubleValue(), -6.02, 0.02);
    EXPECT_NEAR (sine[2].getDoubleValue(), 1000.0, 5.0);

    // White noise: the mean of all frequencies, and for an even distribution 4.77 dB below the peak.
    juce::AudioBuffer<float> noise (1, 200000);
    juce::Random random (3);

    for (int i = 0; i < noise.getNumSamples(); ++i)
        noise.setSample (0, i, random.nextFloat() * 2.0f - 1.0f);

    const auto white = measure (noise, 32000);
    ASSERT_EQ (white.size(), 3);
    EXPECT_NEAR (white[0].getDoubleValue(), -4.77, 0.05);
    EXPECT_NEAR (white[2].getDoubleValue(), 8000.0, 80.0);

    // Two sines of equal power in different channels: the middle. And a click at the very end counts.
    auto pair = signals::makeSine (2, 100000, 500.0, 48000.0, 0.5f);
    pair.copyFrom (1, 0, signals::makeSine (1, 100000, 9500.0, 48000.0, 0.5f), 0, 0, 100000);
    EXPECT_NEAR (measure (pair, 48000)[2].getDoubleValue(), 5000.0, 30.0);
    auto click = signals::makeConstant (1, 5000, 0.0f);
    click.setSample (0, 4999, 1.0f);
    const auto clicked = measure (click, 48000);
    EXPECT_EQ (clicked[1], "0.00");
    EXPECT_NEAR (clicked[2].getDoubleValue(), 12000.0, 10.0);

    EXPECT_EQ (measure (signals::makeConstant (2, 5000, 0.0f), 48000).joinIntoString (" "),
               "-inf -inf 0.0");
    EXPECT_EQ (measure (signals::makeConstant (1, 0, 0.0f), 48000).joinIntoString (" "),
               "-inf -inf 0.0");
}

} // namespace
