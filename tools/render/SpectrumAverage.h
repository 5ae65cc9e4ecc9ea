// The average spectrum of a stream.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <kiss_fftr.h>
#include <memory>
#include <vector>

namespace render
{

/** Adds up the power spectra of overlapping frames of 4096 samples under a Hann window, hop 2048
    (Welch's method), and tells where their centre of gravity lies.
*/
class SpectrumAverage final
{
public:
    SpectrumAverage();

    /** Adds the next samples of the stream. */
    void add (const float* samples, size_t numSamples);

    /** Adds what is left of the stream, followed by silence. */
    void finish();

    /** The summed power at each multiple of sampleRate / frameLength, up to the Nyquist frequency. */
    const std::vector<double>& getPower() const noexcept { return power; }

    static constexpr size_t frameLength = 4096;

private:
    struct Free
    {
        void operator() (kiss_fftr_cfg p) const noexcept { kiss_fftr_free (p); }
    };

    void addFrame();

    static constexpr size_t hop = frameLength / 2;

    std::unique_ptr<kiss_fftr_state, Free> transform;
    std::vector<float> window, frame, windowed;
    std::vector<kiss_fft_cpx> bins;
    std::vector<double> power;
    size_t numWaiting =
        hop; ///< samples at the start of `frame`; begins with half a frame of silence
};

} // namespace render
