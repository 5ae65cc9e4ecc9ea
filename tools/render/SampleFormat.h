// The kinds of samples that the tool writes.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace render
{

enum class SampleFormat
{
    pcm16,
    pcm24,
    float32
};

/** The bytes of one sample. */
constexpr int getBytesPerSample (SampleFormat format)
{
    return format == SampleFormat::pcm16 ? 2 : format == SampleFormat::pcm24 ? 3 : 4;
}

} // namespace render
