// Looks for glitches in an instance's output.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <array>
#include <bit>
#include <cstdint>

namespace soak
{

/** Whether a sample is a subnormal number. Looks at the bits: to the arithmetic of a thread that
    flushes denormals, which the audio thread does, such a number is zero.
*/
inline bool isSubnormal (float sample) noexcept
{
    const auto bits = std::bit_cast<std::uint32_t> (sample) & 0x7fffffffu;
    return bits != 0 && bits < 0x00800000u;
}

/** Counts the samples that no setting explains: NaN, infinity, subnormal numbers, and samples that
    the limiter should have stopped.

    The limiter lets a sudden peak through and then closes 1/64 of the way for each sample at or
    above 4.0. From unity gain it needs 64 ln (peak / 4) such samples to bring a peak below 4.0 again,
    which is 265 for the loudest peak there can be; each new peak starts part of that anew. So of
    4096 samples, the time for which it then holds, at most a quarter may stay that loud.
*/
class OutputWatch final
{
public:
    /** Looks at a block. */
    void look (const juce::AudioBuffer<float>& block) noexcept;

    juce::int64 getNumGlitches() const noexcept { return numGlitches; }
    float getLoudest() const noexcept { return loudest; }

    /** What the first glitch was; empty if there was none. */
    const char* getFirstGlitch() const noexcept { return firstGlitch; }

    /** A number that stands for all the sound so far, to compare two runs (FNV-1a). */
    std::uint64_t getFingerprint() const noexcept { return fingerprint; }

    /** The loudest sample that input, drive, resonance and gains can make together: 1.5 of input and
        the filter's own states times its output gain of 5, at +18 dB.
    */
    static constexpr float ceiling = 250.0f;

private:
    struct Channel
    {
        int numSamples = 0, numLoud = 0;
    };

    void lookAt (float sample, Channel& channel) noexcept;
    void note (const char* glitch) noexcept;

    static constexpr float threshold = 4.0f;
    static constexpr int windowLength = 4096, mostLoud = windowLength / 4;

    std::array<Channel, 2> channels;
    juce::int64 numGlitches = 0;
    const char* firstGlitch = "";
    float loudest = 0.0f;
    std::uint64_t fingerprint = 0xcbf29ce484222325;
};

} // namespace soak
