// A long life of one instance in a restless host, faster than real time.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "product/VorloProcessor.h"
#include "tools/soak/OutputWatch.h"
#include "tools/soak/RandomAutomation.h"
#include "tools/soak/RandomSignal.h"
#include "tools/soak/RandomTransport.h"

#include <array>
#include <vector>

namespace soak
{

/** Runs an instance through sessions of half a minute of sound each. A session prepares it for
    another sample rate and block size; during it parameters, transport, MIDI, edits with undo, programs
    and state chunks come at random. The same seed gives the same sound. [message thread]
*/
class Soak final
{
public:
    /** @param folder  where settings and presets of the instance lie */
    Soak (const juce::File& folder, juce::int64 seed);
    ~Soak();

    /** Runs one session. */
    void runSession();

    const OutputWatch& getOutput() const noexcept { return output; }

    /** The sound so far, in seconds. */
    double getSeconds() const noexcept { return seconds; }

    juce::int64 getNumBlocks() const noexcept { return numBlocks; }
    juce::int64 getNumStateCalls() const noexcept { return numStateCalls; }

    /** The bytes allocated at the end of each session. */
    const std::vector<std::int64_t>& getHeapSizes() const noexcept { return heapSizes; }

    /** The parameters as they stand. */
    juce::String describeSettings() const;

private:
    void prepare();
    void processBlock();
    void disturb();
    void edit();
    void saveState();
    void loadState();
    juce::MemoryBlock& pickState();

    static constexpr double sessionSeconds = 30.0;

    juce::Random random;
    VorloProcessor processor;
    RandomTransport transport;
    RandomSignal signal;
    RandomAutomation automation;
    OutputWatch output;
    juce::AudioBuffer<float> buffer;
    juce::MidiBuffer midi;
    std::array<juce::MemoryBlock, 4> states;
    std::vector<std::int64_t> heapSizes;
    double sampleRate = 48000.0, seconds = 0.0;
    int longestBlock = 512;
    juce::int64 numBlocks = 0, numStateCalls = 0;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (Soak)
};

} // namespace soak
