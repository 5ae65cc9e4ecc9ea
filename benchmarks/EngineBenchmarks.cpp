// The cost of the audio engine: the whole chain and its stages, per stereo frame.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/VorloProcessor.h"

#include <benchmark/benchmark.h>

#include <string>
#include <utility>
#include <vector>

namespace
{

using Settings = std::vector<std::pair<const char*, double>>;

constexpr double sampleRate = 48000.0;

/** What a row of the table sets; everything else stays at its default. */
struct Row
{
    const char* name;
    Settings settings;
};

const Row rows[] = {
    { "at_rest", {} },
    { "high_pass_at_rest", { { "filterType", 1.0 }, { "hipassFreq", 700.0 } } },
    { "filter_bypassed", { { "bypassFilter", 1.0 } } },
    { "drive", { { "bypassFilter", 1.0 }, { "drive", 60.0 } } },
    { "crush", { { "bypassFilter", 1.0 }, { "crush", 50.0 } } },
    { "downsample", { { "bypassFilter", 1.0 }, { "downsamp", 30.0 } } },
    { "limiter_at_work", { { "bypassFilter", 1.0 }, { "dry", 18.0 }, { "wet", 18.0 } } },
    { "all_stages",
      { { "drive", 60.0 },
        { "crush", 50.0 },
        { "downsamp", 30.0 },
        { "lowpassFreq", 1500.0 },
        { "lowpassRes", 0.5 } } },
    { "all_stages_high_pass",
      { { "drive", 60.0 },
        { "crush", 50.0 },
        { "downsamp", 30.0 },
        { "filterType", 1.0 },
        { "hipassFreq", 700.0 },
        { "hipassRes", 0.5 } } },
    { "drive_depth",
      { { "bypassFilter", 1.0 },
        { "drive", 60.0 },
        { "driveModDepth", 50.0 },
        { "lfoFreeRate", 2.0 } } },
    { "crush_depth",
      { { "bypassFilter", 1.0 },
        { "crush", 50.0 },
        { "crushModDepth", 50.0 },
        { "lfoFreeRate", 2.0 } } },
    { "downsample_depth",
      { { "bypassFilter", 1.0 },
        { "downsamp", 30.0 },
        { "downsampModDepth", 50.0 },
        { "lfoFreeRate", 2.0 } } },
    { "cutoff_depth", { { "filterFreqModDepth", 50.0 }, { "lfoFreeRate", 2.0 } } },
    { "resonance_depth",
      { { "lowpassRes", 0.5 }, { "filterResModDepth", 50.0 }, { "lfoFreeRate", 2.0 } } },
    { "all_depths",
      { { "drive", 60.0 },
        { "driveModDepth", 50.0 },
        { "crush", 50.0 },
        { "crushModDepth", 50.0 },
        { "downsamp", 30.0 },
        { "downsampModDepth", 50.0 },
        { "lowpassFreq", 4000.0 },
        { "lowpassRes", 0.5 },
        { "filterFreqModDepth", 50.0 },
        { "filterResModDepth", 50.0 },
        { "lfoFreeRate", 2.0 } } },
    { "all_depths_high_pass",
      { { "drive", 60.0 },
        { "driveModDepth", 50.0 },
        { "crush", 50.0 },
        { "crushModDepth", 50.0 },
        { "downsamp", 30.0 },
        { "downsampModDepth", 50.0 },
        { "filterType", 1.0 },
        { "hipassFreq", 4000.0 },
        { "hipassRes", 0.5 },
        { "filterFreqModDepth", 50.0 },
        { "filterResModDepth", 50.0 },
        { "lfoFreeRate", 2.0 } } },
};

/** Noise that the stages are fed with, made anew for each block so that none runs on its own
    output.
*/
class Noise final
{
public:
    explicit Noise (int blockSize) : block (2, blockSize), fresh (2, blockSize)
    {
        juce::Random random (1);

        for (int channel = 0; channel < 2; ++channel)
            for (int i = 0; i < blockSize; ++i)
                fresh.setSample (channel, i, random.nextFloat() - 0.5f);
    }

    juce::AudioBuffer<float>& next()
    {
        for (int channel = 0; channel < 2; ++channel)
            block.copyFrom (channel, 0, fresh, channel, 0, fresh.getNumSamples());

        return block;
    }

private:
    juce::AudioBuffer<float> block, fresh;
};

/** Shows the time of one stereo frame, which is what all figures are quoted in. */
void reportFrames (benchmark::State& state)
{
    const auto frames =
        static_cast<double> (state.iterations()) * static_cast<double> (state.range (0));
    state.counters["per_frame"] =
        benchmark::Counter (frames, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

/** What moving the samples costs without any processing: a gain. */
void runFloor (benchmark::State& state)
{
    Noise noise (static_cast<int> (state.range (0)));

    for (auto _ : state)
    {
        auto& block = noise.next();
        block.applyGain (0.7f);
        benchmark::DoNotOptimize (block.getReadPointer (0));
        benchmark::ClobberMemory();
    }

    reportFrames (state);
}

/** One channel of one ladder: its chain of dependent operations bounds the whole engine. */
template <typename Filter>
void runOneLadder (benchmark::State& state)
{
    const auto blockSize = static_cast<int> (state.range (0));
    Noise noise (blockSize);
    Filter filter;
    filter.prepare (static_cast<float> (sampleRate), blockSize);
    filter.setCutoff (1500.0f);
    filter.setResonance (0.5f);

    for (auto _ : state)
    {
        filter.process (noise.next().getWritePointer (0), blockSize);
        benchmark::ClobberMemory();
    }

    reportFrames (state);
}

void runChain (benchmark::State& state, const Settings& settings)
{
    const auto blockSize = static_cast<int> (state.range (0));
    Noise noise (blockSize);
    juce::MidiBuffer midi;
    VorloProcessor processor{ zembra::FolderRoots::inside (
        juce::File::getSpecialLocation (juce::File::tempDirectory)
            .getChildFile ("vorlo-benchmarks")) };

    for (const auto& [id, value] : settings)
        processor.getParamSet().getParam (id)->setValue (value, zembra::sourceHost);

    processor.setRateAndBufferSizeDetails (sampleRate, blockSize);
    processor.prepareToPlay (sampleRate, blockSize);

    // The glides after the start are over long before this is.
    for (int done = 0; done < 40000; done += blockSize)
        processor.processBlock (noise.next(), midi);

    for (auto _ : state)
    {
        processor.processBlock (noise.next(), midi);
        benchmark::ClobberMemory();
    }

    reportFrames (state);
}

void addSizes (benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgName ("block");

    for (const auto blockSize : { 256, 32, 64, 512, 2048 })
        benchmark->Arg (blockSize);
}

bool addAll()
{
    addSizes (benchmark::RegisterBenchmark ("floor", runFloor));
    addSizes (
        benchmark::RegisterBenchmark ("one_low_pass_ladder", runOneLadder<VorloLowPassFilter>));
    addSizes (
        benchmark::RegisterBenchmark ("one_high_pass_ladder", runOneLadder<VorloHiPassFilter>));

    for (const auto& row : rows)
        addSizes (benchmark::RegisterBenchmark (row.name, runChain, row.settings));

    return true;
}

[[maybe_unused]] const bool added = addAll();

} // namespace
