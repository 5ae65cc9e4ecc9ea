// Writes an audio file that appears when it is complete.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/render/AudioFileType.h"
#include "tools/render/PendingFile.h"

#include <juce_audio_basics/juce_audio_basics.h>

#include <memory>
#include <sndfile.h>
#include <vector>

namespace render
{

/** Writes frames to a PendingFile. Integer samples are rounded to the nearest and clipped at full
    scale, so that what was read from a file of the same kind is written back bit by bit.
*/
class AudioFileSink final
{
public:
    /** @throws Failure  if the file can't be written */
    AudioFileSink (const std::string& pathToWrite, AudioFileType type, const AudioFileSpec& spec);

    /** Appends the first frames of a buffer.
        @throws Failure  if the disk is full, for one
    */
    void write (const juce::AudioBuffer<float>& buffer, int numFrames);

    /** Completes the file and gives it its name.
        @throws Failure  as write() does
    */
    void finish();

private:
    struct Close
    {
        void operator() (SNDFILE* f) const noexcept { sf_close (f); }
    };

    void writeFloats (const juce::AudioBuffer<float>& buffer, int numFrames);
    void writeInts (const juce::AudioBuffer<float>& buffer, int numFrames);
    void checkWritten (sf_count_t written, int wanted) const;

    const std::string path;
    const SampleFormat sampleFormat;
    PendingFile pending;
    std::unique_ptr<SNDFILE, Close> file;
    std::vector<float> floats;
    std::vector<int> ints;
};

} // namespace render
