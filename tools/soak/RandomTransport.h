// A transport that plays, stops, loops and jumps at random, repeatable from a seed.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_basics/juce_audio_basics.h>

namespace soak
{

/** The play head of a restless host. A sane one moves within what music needs; a wild one also says
    what no host should: a tempo of 0 or NaN, a signature of 0/0, positions at the ends of their types.
    Both leave some or all of their answers out now and then. [the thread that calls advance()]
*/
class RandomTransport final : public juce::AudioPlayHead
{
public:
    enum class Manners
    {
        sane,
        wild
    };

    RandomTransport (juce::int64 seed, Manners mannersToUse) noexcept
        : random (seed),
          manners (mannersToUse)
    {
    }

    /** Moves on by one block, or elsewhere. */
    void advance (int numSamples, double sampleRate) noexcept;

    juce::Optional<PositionInfo> getPosition() const override { return position; }

private:
    void changePlan() noexcept;
    PositionInfo getSanePosition (double sampleRate) const noexcept;
    PositionInfo getWildPosition() noexcept;
    double getWildNumber() noexcept;

    juce::Random random;
    const Manners manners;
    juce::Optional<PositionInfo> position;
    juce::int64 samples = 0;
    double bpm = 120.0;
    TimeSignature signature{ 4, 4 };
    bool isPlaying = true, isLooping = false, isSilent = false;
};

} // namespace soak
