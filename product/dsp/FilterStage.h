// The filter of the chain: both ladders of both channels, with the glides of their knobs.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/Chunk.h"
#include "framework/dsp/LinearSmoother.h"
#include "framework/dsp/SwitchableFilter.h"
#include "product/dsp/VorloHiPassFilter.h"
#include "product/dsp/VorloLowPassFilter.h"

#include <array>

/** Steers the selected ladder of each channel. While one type fades into the other, or the whole
    filter fades out, it runs by itself; in all other times the chain's loop runs it, which takes
    its numbers from here. [audio thread]
*/
class FilterStage final
{
public:
    enum Type : int
    {
        lowPass = 0,
        hiPass = 1
    };

    /** The knobs, and how deep the LFO pulls them. */
    struct Settings
    {
        int type;
        bool enabled;
        std::array<float, 2> freq; ///< Hz, by type
        std::array<float, 2> res;  ///< 0 to 1, by type
        float freqDepth, resDepth; ///< 0 to 1
    };

    FilterStage();

    void prepare (float sampleRate, int blockSize);
    void reset();

    /** Begins a block: selects the type, and switches the filter on or off. */
    void begin (const Settings& newSettings);

    /** True if the chain's loop can run this block: nothing fades that would be heard. */
    bool isSettled (int numChannels) const noexcept;

    /** True if the filter leaves this block, and all that follow, as they are. */
    bool isOff (int numChannels) const noexcept;

    /** Steers a chunk of a filter that is on. */
    void steer (const zembra::Chunk& chunk, const float* lfo) noexcept;

    /** Filters a chunk of a filter that is on, whether or not it is settled. */
    void processChunk (juce::AudioBuffer<float>& buffer, int numChannels,
                       const zembra::Chunk& chunk, const float* lfo);

    /** Filters a whole block of a filter that is off, or fades out. */
    void processOff (juce::AudioBuffer<float>& buffer, int numChannels);

    /** Lets the fade of switching on go by, which isn't heard. */
    void skipFade (int numChannels, int numSamples) noexcept;

    // What the chain's loop runs the selected ladders with.
    int getType() const noexcept { return settings.type; }
    LadderTuning<zembra::Control>& getTuning() noexcept { return tuning; }
    LadderState<float>& getState (int channel) noexcept;
    const zembra::SoftClipper& getClipper() const noexcept { return ladders[0].low->getClipper(); }

private:
    /** The curves of one chunk. */
    struct Curves
    {
        std::array<float, zembra::Control::maxFrames> freq, res;
    };

    /** The ladders of one channel, which its switch owns. */
    struct Ladders
    {
        VorloLowPassFilter* low = nullptr;
        VorloHiPassFilter* high = nullptr;
    };

    /** The glides of one type's knobs. */
    struct Smoothers
    {
        zembra::LinearSmoother freq{ 1.0f }, res{ 0.01f };

        bool areDone() const noexcept { return freq.isDone() && res.isDone(); }
    };

    bool isModulated() const noexcept;
    void setTargets() noexcept;
    void fillCurves (Curves& curves, int numSamples, const float* lfo) noexcept;
    template <typename Filter>
    void steer (Filter& first, Filter& second, const zembra::Chunk& chunk,
                const float* lfo) noexcept;
    template <typename Filter>
    void steerSteadily (Filter& filter) noexcept;
    template <typename Filter>
    void steerExactly (Filter& filter, const Curves& curves, int numSamples) noexcept;
    template <typename Filter>
    void processChunk (Filter& filter, zembra::SwitchableFilter& owner, float* samples,
                       const Curves& curves, int numSamples);

    Settings settings{};
    std::array<Smoothers, 2> smoothers;
    std::array<zembra::SwitchableFilter, 2> filters;
    std::array<Ladders, 2> ladders;
    LadderTuning<zembra::Control> tuning;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (FilterStage)
};
