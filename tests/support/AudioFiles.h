// Audio files that tests write and read.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

#include <sndfile.h>

/** A whole audio file in memory. */
struct AudioFile
{
    juce::AudioBuffer<float> buffer;
    int sampleRate = 48000;
    int format = SF_FORMAT_WAV | SF_FORMAT_PCM_16; ///< as libsndfile numbers it

    /** Writes it. Samples are rounded to what the format holds. */
    void write (const juce::File& file) const;

    /** Reads a file; one of no channels if that fails. */
    static AudioFile read (const juce::File& file);
};

/** Whether two buffers hold the same bits of sound. */
bool areEqual (const juce::AudioBuffer<float>& a, const juce::AudioBuffer<float>& b);

/** Writes a stereo WAV file of silence, 16 bits at 48 kHz, that takes no room on most disks. */
void writeLongSilence (const juce::File& file, int numFrames);
