// Laying out of the block, and a look at its margins.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/validate/GuardedBlock.h"

#include <algorithm>

namespace validate
{

GuardedBlock::GuardedBlock (int numChannelsToUse, int longestBlock)
    : numChannels (numChannelsToUse),
      stride (longestBlock + marginLength),
      memory (static_cast<size_t> (stride * numChannels + marginLength)),
      channels (static_cast<size_t> (numChannels))
{
}

juce::AudioBuffer<float> GuardedBlock::get (int numSamples)
{
    length = numSamples;
    std::fill (memory.begin(), memory.end(), guard);

    for (int i = 0; i < numChannels; ++i)
        channels[static_cast<size_t> (i)] = memory.data() + marginLength + i * stride;

    return { channels.data(), numChannels, numSamples };
}

bool GuardedBlock::isIntact() const noexcept
{
    for (int i = 0; i < static_cast<int> (memory.size()); ++i)
    {
        const auto inChannel = (i - marginLength) % stride;
        const auto isSample =
            i >= marginLength && i < marginLength + stride * numChannels && inChannel < length;

        if (! isSample && memory[static_cast<size_t> (i)] != guard)
            return false;
    }

    return true;
}

} // namespace validate
