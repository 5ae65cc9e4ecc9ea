// The product's processor: parameters, cached values and the signal chain.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/PluginProcessor.h"
#include "framework/core/Relaxed.h"
#include "framework/dsp/DryWetProcessor.h"
#include "product/VorloParameters.h"
#include "product/dsp/CrushStage.h"
#include "product/dsp/DriveStage.h"
#include "product/dsp/FilterStage.h"
#include "product/dsp/LfoSyncClock.h"
#include "product/dsp/SampleHoldStage.h"
#include "product/dsp/ZembraLfo.h"

#include <array>

/** Drive, crush, downsample, ladder filter, one LFO for all of them, dry/wet and limiter, in place
    and in single precision, on one or two channels.
*/
class VorloProcessor final : public zembra::PluginProcessor
{
public:
    /** @param roots  where presets and settings lie; the system's own folders by default */
    explicit VorloProcessor (const zembra::FolderRoots& roots = {});
    ~VorloProcessor() override;

    void prepareToPlay (double newSampleRate, int maximumBlockSize) override;
    void processAudio (juce::AudioBuffer<float>& buffer, juce::MidiBuffer& midi) override;
    void paramChanged (zembra::Param* param, double plain, double normalised, int source) override;
    bool isBusesLayoutSupported (const BusesLayout& layouts) const override;
    int getAboutYear() const override { return 2016; }
    juce::AudioProcessorEditor* createProductEditor() override;
    void initialiseEditor (juce::AudioProcessorEditor& editor) override;

    /** The samples that the work buffers hold. [audio thread] */
    int getBlockCapacity() const noexcept { return blockCapacity; }

    /** The LFO, so that a test can make its random value repeatable. */
    ZembraLfo& getLfo() noexcept { return lfo; }

    /** Takes the host for another one than it is, for tests. */
    void setHostIsLogic (bool shouldBeLogic) noexcept { hostIsLogic = shouldBeLogic; }

private:
    /** A parameter's value as the audio thread reads it: set by the parameter callback alone. */
    struct CachedParam
    {
        zembra::Param* param = nullptr;
        zembra::Relaxed<float> value;
    };

    /** A knob that the LFO can pull, as read at the start of a block. */
    struct Amount
    {
        float value, depth;
    };

    /** What a block is processed with: parameters may change meanwhile. */
    struct Settings
    {
        Amount drive, crush, downsamp;
        FilterStage::Settings filter;
        int numFiltered; ///< channels that the filter runs on
        bool isFused;    ///< true if one loop can run all stages

        bool isModulated() const noexcept;
    };

    static BusesProperties makeStereoBuses();

    void listenToParams();
    std::array<CachedParam*, 10> getNormalisedCaches();
    void lfoSyncChanged (bool synced, int source);
    juce::Optional<juce::AudioPlayHead::PositionInfo> pollPlayHead();
    void resetChain();

    // The steps of processAudio(), in order.
    void growBuffers (int numSamples);
    void followTransport();
    void readSettings (int numChannels);
    void copyDry (const juce::AudioBuffer<float>& buffer);
    void runLfo (int numSamples);
    void steerDrive (const zembra::Chunk& chunk);
    void steerCrush (const zembra::Chunk& chunk);
    void steerDownsample (const zembra::Chunk& chunk);
    void steerFilter (const zembra::Chunk& chunk);
    void steerMix (const zembra::Chunk& chunk);
    float runLoop (juce::AudioBuffer<float>& buffer, const zembra::Chunk& chunk);
    void finishUnfused (juce::AudioBuffer<float>& buffer);

    void lockLfoToTransport() noexcept;
    const float* getLfo (const zembra::Chunk& chunk) const noexcept;

    bool hostIsLogic;
    juce::AudioPlayHead::PositionInfo positionInfo;
    juce::int64 previousTimeInSamples = 0;
    juce::int64 lastTimeInSamples = 0;

    float sampleRate = 0.0f;
    int numInputs = 0;
    int numOutputs = 0;
    int blockCapacity = 0;
    juce::AudioBuffer<float> dryBuffer{ 2, 512 }; ///< the input, for the dry signal
    juce::AudioBuffer<float> modBuffer{ 2, 512 }; ///< channel 0: the LFO, 0 to 1

    Settings settings{};
    CachedParam drive, driveDepth, crush, crushDepth, downsamp, downsampDepth;
    std::array<CachedParam, 2> filterFreqs, filterRes; ///< by type
    CachedParam filterFreqDepth, filterResDepth;
    zembra::Relaxed<int> filterType{ 1 };
    zembra::Relaxed<bool> filterEnabled{ true };
    zembra::Relaxed<bool> lfoSynced{ false };
    zembra::Relaxed<int> lfoWaveform{ 0 };

    juce::IIRCoefficients lfoCoefficients, slowCoefficients;
    std::array<juce::IIRFilter, 2> channelSmoothers; ///< kept ready; the chain doesn't run them

    zembra::DryWetProcessor dryWet;
    VorloParameters params;
    DriveStage driveStage{ 1e-5f };
    CrushStage crushStage;
    SampleHoldStage downsampler;
    FilterStage filterStage;
    ZembraLfo lfo;
    juce::IIRFilter lfoSmoother;
    LfoSyncClock lfoClock;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (VorloProcessor)
};
