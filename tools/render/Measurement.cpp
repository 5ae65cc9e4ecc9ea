// Measuring of a file.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/Measurement.h"

#include "tools/render/AudioFileSource.h"
#include "tools/render/Failure.h"
#include "tools/render/Interrupt.h"
#include "tools/render/Progress.h"
#include "tools/render/SpectrumAverage.h"

#include <cmath>
#include <cstdio>

namespace render
{

namespace
{

/** Sums of what has gone by. */
struct Sums
{
    explicit Sums (int numChannels) : spectra (static_cast<size_t> (numChannels)) {}

    void add (const juce::AudioBuffer<float>& buffer, int numFrames)
    {
        for (size_t channel = 0; channel < spectra.size(); ++channel)
        {
            const auto* samples = buffer.getReadPointer (static_cast<int> (channel));
            spectra[channel].add (samples, static_cast<size_t> (numFrames));

            for (int i = 0; i < numFrames; ++i)
            {
                const auto sample = static_cast<double> (samples[i]);
                squares += sample * sample;
                peak = std::max (peak, std::abs (sample));
            }
        }

        count += static_cast<double> (numFrames) * static_cast<double> (spectra.size());
    }

    double getCentroid (double sampleRate)
    {
        double weighted = 0.0, total = 0.0;

        for (auto& spectrum : spectra)
        {
            spectrum.finish();

            for (size_t i = 0; i < spectrum.getPower().size(); ++i)
            {
                weighted += static_cast<double> (i) * spectrum.getPower()[i];
                total += spectrum.getPower()[i];
            }
        }

        const auto binWidth = sampleRate / static_cast<double> (SpectrumAverage::frameLength);
        return total > 0.0 ? binWidth * weighted / total : 0.0;
    }

    std::vector<SpectrumAverage> spectra; ///< one a channel
    double squares = 0.0, peak = 0.0, count = 0.0;
};

double toDecibels (double gain) { return 20.0 * std::log10 (gain); }

} // namespace

Measurement measureFile (const std::string& path)
{
    constexpr int chunkSize = 16384;
    AudioFileSource source (path);
    Sums sums (source.getNumChannels());
    juce::AudioBuffer<float> chunk (source.getNumChannels(), chunkSize);
    Progress progress (source.getNumFrames());
    std::int64_t done = 0;

    for (int numFrames = chunkSize; numFrames == chunkSize;)
    {
        numFrames = source.read (chunk);
        sums.add (chunk, numFrames);
        progress.show (done += numFrames);
        checkForInterrupt();
    }

    if (! std::isfinite (sums.squares))
        throw Failure (inQuotes (path) + " holds samples that are no finite numbers");

    const auto rms = std::sqrt (sums.squares / std::max (sums.count, 1.0));
    return { toDecibels (rms), toDecibels (sums.peak), sums.getCentroid (source.getSampleRate()) };
}

std::string Measurement::toString() const
{
    char text[128];
    std::snprintf (text, sizeof (text), "%.2f %.2f %.1f", rmsDb, peakDb, centroidHz);
    return text;
}

} // namespace render
