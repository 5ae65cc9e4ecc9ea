// Which file format an output's name asks for, and what it can hold.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/render/SampleFormat.h"

#include <cstdint>
#include <optional>
#include <string>

namespace render
{

/** What an output file is to hold. */
struct AudioFileSpec
{
    int numChannels = 0;
    int sampleRate = 0;         ///< Hz
    std::int64_t numFrames = 0; ///< expected; may be less in the end
    SampleFormat sampleFormat = SampleFormat::pcm24;
};

/** One of the formats that can be written. */
enum class AudioFileType
{
    wav,
    aiff,
    flac
};

/** The format that a file name's extension stands for, in any case.
    @throws Failure  if it stands for none
*/
AudioFileType getAudioFileType (const std::string& path);

/** The samples to write: the wanted ones, else the input's where the format has them, else 24 bits.
    @throws Failure  if the format can't hold the wanted ones
*/
SampleFormat chooseSampleFormat (AudioFileType type, std::optional<SampleFormat> wanted,
                                 std::optional<SampleFormat> input);

/** libsndfile's number for a format. A WAV file that would be too long for its header becomes RF64.
    @throws Failure  if an AIFF file would be too long
*/
int getSndfileFormat (AudioFileType type, const AudioFileSpec& spec);

} // namespace render
