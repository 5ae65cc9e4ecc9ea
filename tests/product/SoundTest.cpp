// The whole chain against the independent model, sample by sample.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/ReferenceEngine.h"
#include "tests/support/Signals.h"
#include "tests/support/TestProcessor.h"

#include <gtest/gtest.h>

#include <map>

namespace
{

/** A change of parameters in mid-run. */
struct Change
{
    int atBlock;
    std::string id;
    double value;
};

struct Case
{
    std::string name;
    std::map<std::string, double> settings;
    std::vector<Change> changes;
    float level = 0.9f;
    double sampleRate = 48000.0;
    bool isModulated = false;
    bool isHasty = false; ///< its blocks are one step long, so that changes meet what still glides
};

std::ostream& operator<< (std::ostream& out, const Case& c) { return out << c.name; }

const Case cases[] = {
    { "defaults", {}, {} },
    { "drive", { { "drive", 63.0 } }, { { 20, "drive", 12.5 }, { 40, "drive", 0.0 } } },
    { "crush", { { "crush", 55.0 } }, { { 30, "crush", 97.0 } } },
    { "crush_to_one_bit", { { "crush", 100.0 } }, {} },
    { "downsample", { { "downsamp", 35.0 } }, { { 25, "downsamp", 100.0 } } },
    { "low_pass",
      { { "lowpassFreq", 900.0 }, { "lowpassRes", 0.7 } },
      { { 15, "lowpassFreq", 12000.0 }, { 30, "lowpassRes", 0.2 } } },
    { "full_resonance", { { "lowpassFreq", 440.0 }, { "lowpassRes", 1.0 } }, {} },
    { "high_pass", { { "filterType", 1.0 }, { "hipassFreq", 700.0 }, { "hipassRes", 0.9 } }, {} },
    { "above_nyquist", { { "lowpassFreq", 20000.0 }, { "lowpassRes", 0.5 } }, {}, 0.9f, 22050.0 },
    { "types_switched_in_mid_run",
      { { "lowpassFreq", 500.0 }, { "hipassFreq", 2000.0 } },
      { { 10, "filterType", 1.0 }, { 20, "filterType", 0.0 }, { 21, "filterType", 1.0 } } },
    { "bypass_in_mid_run",
      { { "lowpassFreq", 500.0 }, { "lowpassRes", 0.6 } },
      { { 10, "bypassFilter", 1.0 },
        { 11, "filterType", 1.0 },
        { 30, "bypassFilter", 0.0 },
        { 33, "bypassFilter", 1.0 },
        { 34, "bypassFilter", 0.0 } } },
    { "types_switched_while_fading_out",
      { { "lowpassFreq", 500.0 }, { "hipassFreq", 2000.0 } },
      { { 10, "filterType", 1.0 }, { 10, "bypassFilter", 1.0 } } },
    { "glide_turned_round_while_off",
      { { "lowpassFreq", 500.0 }, { "lowpassRes", 0.6 } },
      { { 10, "lowpassFreq", 5000.0 },
        { 11, "bypassFilter", 1.0 },
        { 12, "lowpassFreq", 900.0 },
        { 13, "lowpassFreq", 5000.0 },
        { 14, "bypassFilter", 0.0 } },
      0.9f,
      48000.0,
      false,
      true },
    { "all_stages",
      { { "drive", 40.0 },
        { "crush", 30.0 },
        { "downsamp", 20.0 },
        { "lowpassFreq", 3000.0 },
        { "lowpassRes", 0.5 },
        { "wet", 0.0 } },
      {} },
    { "all_stages_8k",
      { { "drive", 40.0 },
        { "crush", 30.0 },
        { "downsamp", 60.0 },
        { "lowpassFreq", 3000.0 },
        { "lowpassRes", 0.5 } },
      {},
      0.9f,
      8000.0 },
    { "all_stages_384k",
      { { "drive", 40.0 },
        { "crush", 30.0 },
        { "downsamp", 20.0 },
        { "lowpassFreq", 3000.0 },
        { "lowpassRes", 0.5 } },
      {},
      0.9f,
      384000.0 },
    { "into_the_limiter", { { "dry", 18.0 }, { "wet", 12.0 } }, { { 30, "dry", -48.0 } }, 1.0f },
    { "gains_and_bypasses",
      { { "dry", -10.0 }, { "wet", 3.0 } },
      { { 5, "bypassDrySignal", 1.0 },
        { 15, "bypassWetSignal", 1.0 },
        { 25, "bypassDrySignal", 0.0 },
        { 35, "wet", -48.0 },
        { 36, "bypassWetSignal", 0.0 } } },
    { "linked_gains",
      { { "dry", -3.0 }, { "wet", -9.0 }, { "dryWetLink", 1.0 } },
      { { 10, "wet", -12.0 }, { 20, "dry", 18.0 }, { 30, "dry", -45.0 } } },
    { "modulated_drive",
      { { "drive", 80.0 }, { "driveModDepth", 70.0 }, { "lfoFreeRate", 3.0 } },
      { { 30, "driveModDepth", 0.0 } },
      0.9f,
      48000.0,
      true },
    { "modulated_crush",
      { { "crush", 60.0 },
        { "crushModDepth", 100.0 },
        { "lfoFreeRate", 2.0 },
        { "lfoWaveform", 2.0 } },
      {},
      0.9f,
      48000.0,
      true },
    { "modulated_downsample",
      { { "downsamp", 60.0 },
        { "downsampModDepth", 80.0 },
        { "lfoFreeRate", 5.0 },
        { "lfoWaveform", 1.0 } },
      {},
      0.9f,
      48000.0,
      true },
    { "modulated_low_pass",
      { { "lowpassFreq", 8000.0 },
        { "lowpassRes", 0.8 },
        { "filterFreqModDepth", 90.0 },
        { "filterResModDepth", 50.0 },
        { "lfoFreeRate", 4.0 } },
      { { 20, "lfoWaveform", 1.0 }, { 30, "lfoFreeRate", 0.0 }, { 40, "lfoFreeRate", 7.0 } },
      0.9f,
      48000.0,
      true },
    { "modulated_high_pass",
      { { "filterType", 1.0 },
        { "hipassFreq", 4000.0 },
        { "hipassRes", 0.7 },
        { "filterFreqModDepth", 100.0 },
        { "lfoFreeRate", 1.0 },
        { "lfoWaveform", 3.0 } },
      { { 30, "filterType", 0.0 } },
      0.9f,
      44100.0,
      true },
    { "random_at_rest",
      { { "drive", 50.0 }, { "driveModDepth", 100.0 }, { "lfoWaveform", 3.0 } },
      { { 20, "lfoFreeRate", 9.0 } },
      0.9f,
      48000.0,
      true },
    { "synced",
      { { "lfoFreeRate", 2.0 },
        { "lfoSyncOrFree", 1.0 },
        { "lfoSyncedPeriod", 23.0 },
        { "lowpassFreq", 6000.0 },
        { "filterFreqModDepth", 75.0 } },
      { { 25, "lfoSyncedPeriod", 26.0 }, { 35, "lfoSyncOrFree", 0.0 } },
      0.9f,
      48000.0,
      true },
    { "all_modulated",
      { { "drive", 50.0 },
        { "driveModDepth", 50.0 },
        { "crush", 40.0 },
        { "crushModDepth", 60.0 },
        { "downsamp", 30.0 },
        { "downsampModDepth", 70.0 },
        { "lowpassRes", 0.5 },
        { "filterFreqModDepth", 80.0 },
        { "filterResModDepth", 90.0 },
        { "lfoFreeRate", 6.0 } },
      {},
      0.9f,
      48000.0,
      true },
};

/** Runs both engines over the same signal, in blocks that may change in size. */
class Comparison
{
public:
    Comparison (const Case& c, int numInputs, int numOutputs)
        : numChannels (numOutputs),
          sampleRate (c.sampleRate),
          model (numInputs, numOutputs)
    {
        setLayout (numInputs, numOutputs);
        tested.processor.getLfo().getRandom().setSeed (99);
        model.setRandomSource ([this] { return random.nextFloat(); });

        for (const auto& [id, value] : c.settings)
            setBoth (id, value);
    }

    void prepare (int blockSize)
    {
        moveTransport (0);
        tested.processor.prepareToPlay (sampleRate, blockSize);
        model.prepare (sampleRate, blockSize);
    }

    void setBoth (const std::string& id, double value)
    {
        tested.set (id, value);
        model.set (id, value);
    }

    void processBlock (const juce::AudioBuffer<float>& signal, int start, int numSamples)
    {
        juce::AudioBuffer<float> ours (numChannels, numSamples), theirs (numChannels, numSamples);

        for (int channel = 0; channel < numChannels; ++channel)
        {
            ours.copyFrom (channel, 0, signal, channel, start, numSamples);
            theirs.copyFrom (channel, 0, signal, channel, start, numSamples);
        }

        moveTransport (start);
        tested.process (ours);
        model.process (theirs.getArrayOfWritePointers(), numChannels, numSamples);

        for (int channel = 0; channel < numChannels; ++channel)
            for (int i = 0; i < numSamples; ++i)
                compare (ours.getSample (channel, i), theirs.getSample (channel, i));
    }

    int numCompared = 0, numDifferent = 0;
    float largest = 0.0f;

private:
    void setLayout (int numInputs, int numOutputs)
    {
        const auto ins = juce::AudioChannelSet::canonicalChannelSet (numInputs);
        const auto outs = juce::AudioChannelSet::canonicalChannelSet (numOutputs);
        ASSERT_TRUE (tested.processor.setBusesLayout ({ { ins }, { outs } }));
    }

    void compare (float ours, float theirs)
    {
        const auto difference = std::abs (ours - theirs);
        ++numCompared;
        largest = std::max (largest, std::isnan (difference) ? 1e9f : difference);
        numDifferent += difference <= 1e-5f ? 0 : 1;
    }

    void moveTransport (int sample)
    {
        const auto seconds = sample / sampleRate;
        juce::AudioPlayHead::PositionInfo info;
        info.setBpm (133.0);
        info.setTimeSignature (juce::AudioPlayHead::TimeSignature{ 3, 8 });
        info.setPpqPosition (seconds * 133.0 / 60.0);
        info.setTimeInSamples (sample);
        info.setIsPlaying (true);
        tested.playHead.position = info;

        reference::Transport transport;
        transport.bpm = 133.0;
        transport.timeSigNumerator = 3;
        transport.timeSigDenominator = 8;
        transport.ppqPosition = seconds * 133.0 / 60.0;
        transport.timeInSamples = sample;
        transport.isPlaying = true;
        model.setTransport (transport);
    }

    const int numChannels;
    const double sampleRate;
    TestProcessor tested;
    reference::ReferenceEngine model;
    juce::Random random{ 99 };
};

class SoundTest : public testing::TestWithParam<std::tuple<Case, int>>
{
};

/** The unmodulated chain agrees everywhere. Under modulation a quantiser or hold may decide one
    sample otherwise where a value lies on the very edge of a step.
*/
void expectAgreement (const Comparison& comparison, bool isModulated)
{
    if (isModulated)
        EXPECT_LT (comparison.numDifferent, comparison.numCompared / 100)
            << "largest difference " << comparison.largest;
    else
        EXPECT_LE (comparison.largest, 1e-5f)
            << comparison.numDifferent << " of " << comparison.numCompared;
}

TEST_P (SoundTest, AgreesWithTheModel)
{
    const auto& [c, blockSize] = GetParam();
    constexpr int numBlocks = 50;
    const auto stepsPerBlock = c.isHasty ? 1 : std::max (1, 400 / blockSize);
    const auto signal = signals::makeBusySignal (2, numBlocks * stepsPerBlock * blockSize, c.level);
    Comparison comparison (c, 2, 2);
    comparison.prepare (blockSize);

    for (int block = 0, start = 0; block < numBlocks; ++block)
    {
        for (const auto& change : c.changes)
            if (change.atBlock == block)
                comparison.setBoth (change.id, change.value);

        for (int step = 0; step < stepsPerBlock; ++step, start += blockSize)
            comparison.processBlock (signal, start, blockSize);
    }

    expectAgreement (comparison, c.isModulated);
}

INSTANTIATE_TEST_SUITE_P (Stages, SoundTest,
                          testing::Combine (testing::ValuesIn (cases),
                                            testing::Values (1, 37, 256, 1000)),
                          [] (const auto& test)
                          {
                              return std::get<0> (test.param).name + "_in_blocks_of_"
                                     + std::to_string (std::get<1> (test.param));
                          });

/** Block sizes that change all the time, beyond what was announced, in all channel layouts. */
TEST (SoundTest, AgreesForAnyLayoutAndBlockSize)
{
    const auto& allStages = *std::find_if (std::begin (cases), std::end (cases),
                                           [] (const auto& c) { return c.name == "all_stages"; });

    for (const auto& [ins, outs] : { std::pair (1, 1), std::pair (1, 2), std::pair (2, 2) })
    {
        constexpr int length = 60000;
        const auto signal = signals::makeBusySignal (outs, length, 0.9f);
        Comparison comparison (allStages, ins, outs);
        comparison.prepare (64);
        juce::Random random (5);

        for (int start = 0; start < length;)
        {
            const auto numSamples =
                std::min (random.nextInt (random.nextInt (2000) + 1), length - start);
            comparison.processBlock (signal, start, numSamples);
            start += numSamples;
        }

        SCOPED_TRACE (ins * 10 + outs);
        expectAgreement (comparison, false);
    }
}

/** Long runs in which everything moves all the time: sizes, knobs, switches, in all layouts. */
TEST (SoundTest, AgreesOverLongRandomRuns)
{
    struct Knob
    {
        const char* id;
        double lowest, highest;
    };

    const Knob steadyKnobs[] = { { "drive", 0, 100 },        { "crush", 0, 95 },
                                 { "downsamp", 0, 60 },      { "bypassFilter", 0, 1 },
                                 { "filterType", 0, 1 },     { "lowpassFreq", 20, 20000 },
                                 { "lowpassRes", 0, 1 },     { "hipassFreq", 20, 20000 },
                                 { "hipassRes", 0, 1 },      { "dry", -48, 6 },
                                 { "wet", -48, 6 },          { "bypassDrySignal", 0, 1 },
                                 { "bypassWetSignal", 0, 1 } };
    const Knob movingKnobs[] = { { "driveModDepth", 0, 100 },     { "crushModDepth", 0, 100 },
                                 { "downsampModDepth", 0, 60 },   { "filterFreqModDepth", 0, 90 },
                                 { "filterResModDepth", 0, 100 }, { "lfoFreeRate", 0, 9 },
                                 { "lfoWaveform", 0, 3 } };

    for (int run = 0; run < 12; ++run)
    {
        constexpr int length = 100000;
        const auto isModulated = run % 4 == 3;
        const auto layout = run % 3;
        const auto numInputs = layout == 2 ? 2 : 1;
        const auto numOutputs = layout == 0 ? 1 : 2;
        const auto signal = signals::makeBusySignal (2, length, 0.9f);
        juce::Random random (run);
        Case settings;
        settings.sampleRate = run % 2 == 0 ? 48000.0 : 22050.0;
        Comparison comparison (settings, numInputs, numOutputs);
        comparison.prepare (256);

        for (int start = 0; start < length;)
        {
            const auto isMoving = isModulated && random.nextBool();
            const auto& knob =
                isMoving ? movingKnobs[random.nextInt (7)] : steadyKnobs[random.nextInt (13)];
            const auto reach = knob.highest - knob.lowest;
            const auto value = knob.lowest + reach * random.nextDouble();
            const auto isResonance = std::string (knob.id).find ("passRes") != std::string::npos;
            const auto step = isResonance ? 0.02 : 1.0;

            if (random.nextInt (3) == 0)
                comparison.setBoth (knob.id, std::round (value / step) * step);

            const auto numSamples =
                std::min (random.nextInt (random.nextInt (10) == 0 ? 3000 : 300), length - start);
            comparison.processBlock (signal, start, numSamples);
            start += numSamples;
        }

        SCOPED_TRACE (run);
        expectAgreement (comparison, isModulated);
    }
}

} // namespace
