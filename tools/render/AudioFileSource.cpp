// Opening and reading an audio file.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/AudioFileSource.h"

#include "tools/render/Failure.h"
#include "tools/render/SmallFile.h"

#include <cerrno>
#include <fstream>
#include <system_error>

namespace render
{

namespace
{

/** Tells a file that can't be read from one that isn't audio: libsndfile gives one answer to both. */
void checkReadable (const std::string& path)
{
    requireRegularFile (path);
    errno = 0;

    if (! std::ifstream (path, std::ios::binary))
        throw Failure ("can't read " + inQuotes (path) + ": "
                       + std::generic_category().message (errno));
}

} // namespace

AudioFileSource::AudioFileSource (const std::string& pathToRead) : path (pathToRead)
{
    checkReadable (path);
    file.reset (sf_open (path.c_str(), SFM_READ, &info));

    if (file == nullptr || info.channels < 1 || info.samplerate < 1)
        throw Failure (inQuotes (path) + " is no audio file that can be read");
}

std::optional<SampleFormat> AudioFileSource::getSampleFormat() const noexcept
{
    switch (info.format & SF_FORMAT_SUBMASK)
    {
    case SF_FORMAT_PCM_16:
        return SampleFormat::pcm16;
    case SF_FORMAT_PCM_24:
        return SampleFormat::pcm24;
    case SF_FORMAT_FLOAT:
        return SampleFormat::float32;
    default:
        return {};
    }
}

int AudioFileSource::read (juce::AudioBuffer<float>& buffer)
{
    const auto numChannels = static_cast<size_t> (info.channels);
    interleaved.resize (numChannels * static_cast<size_t> (buffer.getNumSamples()));
    const auto numFrames =
        static_cast<int> (sf_readf_float (file.get(), interleaved.data(), buffer.getNumSamples()));
    framesRead += numFrames;

    if (numFrames < buffer.getNumSamples() && framesRead < info.frames)
        throw Failure (inQuotes (path) + " ends early: only " + std::to_string (framesRead) + " of "
                       + std::to_string (info.frames) + " frames can be read");

    for (size_t channel = 0; channel < numChannels; ++channel)
    {
        auto* samples = buffer.getWritePointer (static_cast<int> (channel));

        for (size_t i = 0; i < static_cast<size_t> (numFrames); ++i)
            samples[i] = interleaved[i * numChannels + channel];
    }

    return numFrames;
}

} // namespace render
