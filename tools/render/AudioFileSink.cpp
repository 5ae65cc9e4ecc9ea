// Encoding of the result.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/AudioFileSink.h"

#include "tools/render/Failure.h"

#include <cmath>

namespace render
{

namespace
{

PendingFile& asFile (void* userData) { return *static_cast<PendingFile*> (userData); }

/** The encoder's way to the file, so that no failed write goes unnoticed. */
SF_VIRTUAL_IO makeCallbacks()
{
    return { [] (void* user) -> sf_count_t { return asFile (user).getLength(); },
             [] (sf_count_t offset, int whence, void* user) -> sf_count_t
             { return asFile (user).seek (offset, whence); },
             [] (void* data, sf_count_t count, void* user) -> sf_count_t
             { return asFile (user).read (data, count); },
             [] (const void* data, sf_count_t count, void* user) -> sf_count_t
             { return asFile (user).write (data, count); },
             [] (void* user) -> sf_count_t { return asFile (user).getPosition(); } };
}

/** A sample of the given width, in the upper bits of the result. */
int quantise (float sample, int bits) noexcept
{
    const auto fullScale = std::ldexp (1.0, bits - 1);
    const auto scaled = std::nearbyint (static_cast<double> (sample) * fullScale);

    if (std::isnan (scaled))
        return 0;

    const auto clipped = juce::jlimit (-fullScale, fullScale - 1.0, scaled);
    return static_cast<int> (std::ldexp (clipped, 32 - bits));
}

size_t countSamples (const juce::AudioBuffer<float>& buffer, int numFrames)
{
    return static_cast<size_t> (buffer.getNumChannels()) * static_cast<size_t> (numFrames);
}

/** Calls a function with the place in an interleaved array and the sample, for each sample. */
template <typename Function>
void interleave (const juce::AudioBuffer<float>& buffer, int numFrames, Function&& use)
{
    const auto numChannels = static_cast<size_t> (buffer.getNumChannels());

    for (size_t channel = 0; channel < numChannels; ++channel)
    {
        const auto* samples = buffer.getReadPointer (static_cast<int> (channel));

        for (size_t i = 0; i < static_cast<size_t> (numFrames); ++i)
            use (i * numChannels + channel, samples[i]);
    }
}

} // namespace

AudioFileSink::AudioFileSink (const std::string& pathToWrite, AudioFileType type,
                              const AudioFileSpec& spec)
    : path (pathToWrite),
      sampleFormat (spec.sampleFormat),
      pending (pathToWrite)
{
    SF_INFO info{};
    info.channels = spec.numChannels;
    info.samplerate = spec.sampleRate;
    info.format = getSndfileFormat (type, spec);
    auto callbacks = makeCallbacks();
    file.reset (sf_open_virtual (&callbacks, SFM_WRITE, &info, &pending));

    if (file == nullptr)
        throw Failure ("can't write " + inQuotes (path) + ": " + sf_strerror (nullptr));

    // It would hold the time of day, and equal renders would give different files.
    sf_command (file.get(), SFC_SET_ADD_PEAK_CHUNK, nullptr, SF_FALSE);
}

void AudioFileSink::write (const juce::AudioBuffer<float>& buffer, int numFrames)
{
    if (sampleFormat == SampleFormat::float32)
        writeFloats (buffer, numFrames);
    else
        writeInts (buffer, numFrames);
}

void AudioFileSink::writeFloats (const juce::AudioBuffer<float>& buffer, int numFrames)
{
    floats.resize (countSamples (buffer, numFrames));
    interleave (buffer, numFrames, [this] (size_t i, float sample) { floats[i] = sample; });
    checkWritten (sf_writef_float (file.get(), floats.data(), numFrames), numFrames);
}

void AudioFileSink::writeInts (const juce::AudioBuffer<float>& buffer, int numFrames)
{
    const auto bits = 8 * getBytesPerSample (sampleFormat);
    ints.resize (countSamples (buffer, numFrames));
    interleave (buffer, numFrames,
                [this, bits] (size_t i, float sample) { ints[i] = quantise (sample, bits); });
    checkWritten (sf_writef_int (file.get(), ints.data(), numFrames), numFrames);
}

void AudioFileSink::checkWritten (sf_count_t written, int wanted) const
{
    if (written == wanted && pending.getError().empty())
        return;

    throw Failure ("can't write " + inQuotes (path) + ": "
                   + (pending.getError().empty() ? sf_strerror (file.get()) : pending.getError()));
}

void AudioFileSink::finish()
{
    file.reset();
    pending.commit();
}

} // namespace render
