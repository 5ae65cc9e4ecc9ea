// A small plug-in that is right, or wrong in one chosen way.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

#include <array>
#include <atomic>

/** A gain after a one-pole low-pass, with a choice and a switch that do nothing. Without a fault, a strict
    host has nothing to say against it.
*/
class FaultyPlugin final : public juce::AudioPluginInstance
{
public:
    enum class Fault
    {
        none,
        isNameless,
        hasNoTailEnd,
        latencyWanders,
        preparesWrong,
        isMuteAfterReset,
        sharesItsMemory,
        hasTwinNames,
        hasStuckParameter,
        startsElsewhere,
        misreadsTexts,
        trustsTexts,
        keepsNaN,
        failsAtTheEnd,
        hatesJumps,
        readsValuesTwice,
        whispersAtHighRates,
        writesBeyondBlocks,
        dependsOnBlocks,
        keepsBadSamples,
        hums,
        fearsMono,
        ignoresBypass,
        losesParameter,
        savesDifferently,
        restoresNumbersOnly,
        trustsStates,
        trustsLengths,
        isBadWhileLoading,
        forgetsProgram,
        hasNoEditor
    };

    explicit FaultyPlugin (Fault faultToHave);

    void fillInPluginDescription (juce::PluginDescription& description) const override;
    const juce::String getName() const override { return has (Fault::isNameless) ? "" : "Test"; }
    double getTailLengthSeconds() const override;

    void prepareToPlay (double sampleRate, int longestBlock) override;
    void releaseResources() override {}
    void reset() override { ++numResets; }
    void processBlock (juce::AudioBuffer<float>& block, juce::MidiBuffer& midi) override;
    void processBlockBypassed (juce::AudioBuffer<float>& block, juce::MidiBuffer& midi) override;
    using juce::AudioProcessor::processBlock;
    using juce::AudioProcessor::processBlockBypassed;

    bool isBusesLayoutSupported (const BusesLayout& layout) const override;
    bool acceptsMidi() const override { return true; }
    bool producesMidi() const override { return false; }
    bool hasEditor() const override { return true; }
    juce::AudioProcessorEditor* createEditor() override;

    int getNumPrograms() override { return 3; }
    int getCurrentProgram() override { return program; }
    void setCurrentProgram (int index) override;
    const juce::String getProgramName (int index) override { return juce::String (index); }
    void changeProgramName (int, const juce::String&) override {}
    void getStateInformation (juce::MemoryBlock& state) override;
    void setStateInformation (const void* data, int size) override;

private:
    class Parameter;

    bool has (Fault asked) const noexcept { return fault == asked; }
    float getGain() noexcept;
    void processChannel (float* samples, int numSamples, float gain, float& memory) noexcept;
    float filter (float sample, float& memory) const noexcept;
    void spoil (juce::AudioBuffer<float>& block, float gain);

    const Fault fault;
    std::array<Parameter*, 3> values{}; ///< gain, choice, switch
    std::array<float, 2> memories{};
    float lastGain = 0.7f;
    int program = 0, numPrepares = 0, numResets = 0, numSaves = 0;
    std::atomic<float> engineGain{ 0.7f };
    std::atomic<bool> isLoading{ false };

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (FaultyPlugin)
};
