// The formats of output files.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/AudioFileType.h"

#include "tools/render/Failure.h"

#include <juce_core/juce_core.h>

#include <filesystem>
#include <sndfile.h>

namespace render
{

namespace
{

/** The sizes in the headers of WAV and AIFF have 32 bits; some room is left for the headers. */
bool needsLongHeader (const AudioFileSpec& spec)
{
    constexpr std::int64_t mostBytes = 0xffff0000;
    const auto bytesPerFrame = spec.numChannels * getBytesPerSample (spec.sampleFormat);
    return spec.numFrames > mostBytes / bytesPerFrame;
}

int getSubtype (SampleFormat format)
{
    switch (format)
    {
    case SampleFormat::pcm16:
        return SF_FORMAT_PCM_16;
    case SampleFormat::pcm24:
        return SF_FORMAT_PCM_24;
    case SampleFormat::float32:
        break;
    }

    return SF_FORMAT_FLOAT;
}

} // namespace

AudioFileType getAudioFileType (const std::string& path)
{
    const auto extension =
        juce::String (std::filesystem::path (path).extension().string()).toLowerCase();

    if (extension == ".wav")
        return AudioFileType::wav;

    if (extension == ".aif" || extension == ".aiff")
        return AudioFileType::aiff;

    if (extension == ".flac")
        return AudioFileType::flac;

    throw Failure ("the name of the result must end in .wav, .aif, .aiff or .flac, not as in "
                       + inQuotes (path),
                   Failure::usage);
}

SampleFormat chooseSampleFormat (AudioFileType type, std::optional<SampleFormat> wanted,
                                 std::optional<SampleFormat> input)
{
    const auto hasFloat = type != AudioFileType::flac;

    if (wanted == SampleFormat::float32 && ! hasFloat)
        throw Failure ("FLAC has no floating-point samples: use --bits 24 or another format",
                       Failure::usage);

    if (wanted)
        return *wanted;

    return input && (hasFloat || *input != SampleFormat::float32) ? *input : SampleFormat::pcm24;
}

int getSndfileFormat (AudioFileType type, const AudioFileSpec& spec)
{
    const auto subtype = getSubtype (spec.sampleFormat);

    if (type == AudioFileType::flac)
        return SF_FORMAT_FLAC | subtype;

    const auto isLong = needsLongHeader (spec);

    if (type == AudioFileType::wav)
        return (isLong ? SF_FORMAT_RF64 : SF_FORMAT_WAV) | subtype;

    if (isLong)
        throw Failure ("an AIFF file can't hold more than 4 GB: write a WAV or FLAC file");

    return SF_FORMAT_AIFF | subtype;
}

} // namespace render
