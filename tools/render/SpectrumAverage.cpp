// Windowing and transforming of frames.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/SpectrumAverage.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <numbers>

namespace render
{

SpectrumAverage::SpectrumAverage()
    : transform (kiss_fftr_alloc (static_cast<int> (frameLength), 0, nullptr, nullptr)),
      window (frameLength),
      frame (frameLength),
      windowed (frameLength),
      bins (hop + 1),
      power (hop + 1)
{
    if (transform == nullptr)
        throw std::bad_alloc();

    for (size_t i = 0; i < frameLength; ++i)
    {
        const auto turn = static_cast<double> (i) / static_cast<double> (frameLength);
        window[i] = static_cast<float> (0.5 - 0.5 * std::cos (2.0 * std::numbers::pi * turn));
    }
}

void SpectrumAverage::add (const float* samples, size_t numSamples)
{
    while (numSamples > 0)
    {
        const auto numTaken = std::min (numSamples, frameLength - numWaiting);
        std::copy_n (samples, numTaken, frame.data() + numWaiting);
        samples += numTaken;
        numSamples -= numTaken;
        numWaiting += numTaken;

        if (numWaiting == frameLength)
            addFrame();
    }
}

void SpectrumAverage::finish()
{
    // The second frame puts full weight on the stream's last samples.
    const std::vector<float> silence (frameLength - numWaiting + hop);
    add (silence.data(), silence.size());
}

void SpectrumAverage::addFrame()
{
    std::transform (frame.begin(), frame.end(), window.begin(), windowed.begin(),
                    std::multiplies<float>());
    kiss_fftr (transform.get(), windowed.data(), bins.data());

    for (size_t i = 0; i < bins.size(); ++i)
    {
        const auto re = static_cast<double> (bins[i].r);
        const auto im = static_cast<double> (bins[i].i);
        // All bins but the outermost stand for a negative frequency too.
        power[i] += (i == 0 || i == hop ? 1.0 : 2.0) * (re * re + im * im);
    }

    std::copy (frame.begin() + hop, frame.end(), frame.begin());
    numWaiting = hop;
}

} // namespace render
