// Writing and reading of audio files.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/AudioFiles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

namespace
{

std::vector<float> interleave (const juce::AudioBuffer<float>& buffer)
{
    std::vector<float> samples;

    for (int i = 0; i < buffer.getNumSamples(); ++i)
        for (int channel = 0; channel < buffer.getNumChannels(); ++channel)
            samples.push_back (buffer.getSample (channel, i));

    return samples;
}

} // namespace

void AudioFile::write (const juce::File& file) const
{
    SF_INFO info{};
    info.channels = buffer.getNumChannels();
    info.samplerate = sampleRate;
    info.format = format;
    auto* stream = sf_open (file.getFullPathName().toRawUTF8(), SFM_WRITE, &info);
    ASSERT_NE (stream, nullptr) << sf_strerror (nullptr);
    const auto samples = interleave (buffer);
    EXPECT_EQ (sf_writef_float (stream, samples.data(), buffer.getNumSamples()),
               buffer.getNumSamples());
    sf_close (stream);
}

AudioFile AudioFile::read (const juce::File& file)
{
    SF_INFO info{};
    AudioFile result;
    auto* stream = sf_open (file.getFullPathName().toRawUTF8(), SFM_READ, &info);

    if (stream == nullptr)
        return result;

    result.sampleRate = info.samplerate;
    result.format = info.format;
    result.buffer.setSize (info.channels, static_cast<int> (info.frames));
    std::vector<float> samples (static_cast<size_t> (info.frames * info.channels));
    EXPECT_EQ (sf_readf_float (stream, samples.data(), info.frames), info.frames);
    sf_close (stream);

    for (size_t i = 0; i < samples.size(); ++i)
        result.buffer.setSample (static_cast<int> (i) % info.channels,
                                 static_cast<int> (i) / info.channels, samples[i]);

    return result;
}

bool areEqual (const juce::AudioBuffer<float>& a, const juce::AudioBuffer<float>& b)
{
    if (a.getNumChannels() != b.getNumChannels() || a.getNumSamples() != b.getNumSamples())
        return false;

    for (int channel = 0; channel < a.getNumChannels(); ++channel)
        if (! std::equal (a.getReadPointer (channel),
                          a.getReadPointer (channel) + a.getNumSamples(),
                          b.getReadPointer (channel)))
            return false;

    return true;
}

void writeLongSilence (const juce::File& file, int numFrames)
{
    AudioFile nothing;
    nothing.buffer.setSize (2, 0);
    nothing.write (file);

    // The sizes in the header are those of a file that grows: whatever follows belongs to it.
    juce::FileOutputStream stream (file);
    const auto headerSize = file.getSize();
    const auto numBytes = 4 * static_cast<juce::int64> (numFrames);
    stream.setPosition (4);
    stream.writeInt (static_cast<int> (headerSize - 8 + numBytes));
    stream.setPosition (headerSize - 4);
    stream.writeInt (static_cast<int> (numBytes));
    stream.flush();
    std::filesystem::resize_file (file.getFullPathName().toStdString(),
                                  static_cast<std::uintmax_t> (headerSize + numBytes));
}
