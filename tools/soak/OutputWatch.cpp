// The tests that each output sample has to pass.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/soak/OutputWatch.h"

#include <cmath>

namespace soak
{

void OutputWatch::look (const juce::AudioBuffer<float>& block) noexcept
{
    const auto numChannels = std::min (block.getNumChannels(), static_cast<int> (channels.size()));

    for (int channel = 0; channel < numChannels; ++channel)
        for (int i = 0; i < block.getNumSamples(); ++i)
            lookAt (block.getSample (channel, i), channels[static_cast<size_t> (channel)]);
}

void OutputWatch::lookAt (float sample, Channel& channel) noexcept
{
    const auto size = std::abs (sample);
    fingerprint = (fingerprint ^ std::bit_cast<std::uint32_t> (sample)) * 0x100000001b3;

    if (! std::isfinite (sample))
        return note ("a sample that isn't finite");

    if (isSubnormal (sample))
        note ("a subnormal sample");

    if (size > ceiling)
        note ("a sample louder than anything can be");

    loudest = std::max (loudest, size);
    channel.numLoud += size >= threshold ? 1 : 0;

    if (++channel.numSamples < windowLength)
        return;

    if (channel.numLoud > mostLoud)
        note ("a stretch that the limiter should have lowered");

    channel = {};
}

void OutputWatch::note (const char* glitch) noexcept
{
    if (++numGlitches == 1)
        firstGlitch = glitch;
}

} // namespace soak
