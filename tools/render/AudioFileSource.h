// Reads an audio file from its start to its end.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/render/SampleFormat.h"

#include <juce_audio_basics/juce_audio_basics.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <sndfile.h>
#include <string>
#include <vector>

namespace render
{

/** An audio file in any format that libsndfile knows, whatever its name. */
class AudioFileSource final
{
public:
    /** @throws Failure  if the file is missing, can't be read or isn't audio */
    explicit AudioFileSource (const std::string& pathToRead);

    int getNumChannels() const noexcept { return info.channels; }

    /** In Hz. */
    double getSampleRate() const noexcept { return static_cast<double> (info.samplerate); }

    /** As the file's header says. */
    std::int64_t getNumFrames() const noexcept { return info.frames; }

    /** The kind of samples in the file, if it is one that can be written too. */
    std::optional<SampleFormat> getSampleFormat() const noexcept;

    /** Reads the next frames into the buffer, as many as it holds; full scale is 1.
        @returns  the number of frames read, less than asked for only at the end
        @throws Failure  if the file ends before it should
    */
    int read (juce::AudioBuffer<float>& buffer);

    const std::string& getPath() const noexcept { return path; }

private:
    struct Close
    {
        void operator() (SNDFILE* f) const noexcept { sf_close (f); }
    };

    const std::string path;
    SF_INFO info{};
    std::unique_ptr<SNDFILE, Close> file;
    std::vector<float> interleaved;
    std::int64_t framesRead = 0;
};

} // namespace render
