// Host automation of all parameters at random, repeatable from a seed.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

#include <vector>

namespace soak
{

/** Moves parameters as a host does, those that can be automated: to any place, a little, or to an end.
    Wild automation also sends NaN, infinities and values out of range.
*/
class RandomAutomation final
{
public:
    RandomAutomation (juce::AudioProcessor& processorToMove, juce::int64 seed, bool isWildToUse);

    /** Sends one value to one parameter, and to nearly none twice in a row. */
    void moveOne();

    /** Sends a value to every parameter. */
    void moveAll();

private:
    float getValue (float present) noexcept;
    void move (juce::AudioProcessorParameter& parameter);

    std::vector<juce::AudioProcessorParameter*> parameters;
    juce::Random random;
    const bool isWild;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (RandomAutomation)
};

} // namespace soak
