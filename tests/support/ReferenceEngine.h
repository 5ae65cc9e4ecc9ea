// An independent model of the audio engine, one sample and one channel at a time.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ReferenceControls.h"
#include "ReferenceFilters.h"
#include "ReferenceLfo.h"
#include "ReferenceStages.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace reference
{

/** What the plug-in must compute, stated as plainly as possible and as slow as that makes it.
    Not thread-safe. Subnormals are flushed to zero while a block is processed. */
class ReferenceEngine
{
public:
    /** One or two channels each way. */
    ReferenceEngine (int numInputs, int numOutputs);
    ReferenceEngine (const ReferenceEngine&) = delete;
    ReferenceEngine& operator= (const ReferenceEngine&) = delete;

    /** Sets a plain value as the host would, with clamp, quarter-step gate and side effects. */
    void set (const std::string& id, double plainValue) { controls.set (id, plainValue); }
    double get (const std::string& id) const { return controls.get (id); }

    /** Supplies the values 0 to 1 of the random waveform; without one they are pseudo-random. */
    void setRandomSource (std::function<float()> source);

    /** Must come before the first process. */
    void prepare (double newSampleRate, int blockSize);

    /** What the play head answers from now on; nullopt means that there is none. */
    void setTransport (std::optional<Transport> newTransport) { transport = newTransport; }
    void setHostIsLogic (bool isLogic) { hostIsLogic = isLogic; }

    /** Processes a block in place; channels counts max (inputs, outputs). */
    void process (float* const* channels, int numChannels, int numSamples);

private:
    struct FilterSmoothers
    {
        LinearSmoother freq, res;
    };

    void readTransport();
    void resetChain();
    void fillModulation (int n);
    void lockLfoPhase();
    void drive (float* const* channels, int numChannels, int n);
    void crush (float* const* channels, int numChannels, int n);
    void downsample (float* const* channels, int numChannels, int n);
    void filter (float* const* channels, int numChannels, int n);
    void processFilterOff (float* const* channels, int filteredChannels, int n);
    void fillFilterCurves (int n, float* freqs, float* resonances);

    const int numInputs, numOutputs;
    int blockCapacity = 0;
    float sampleRate = 0.0f;
    bool hostIsLogic = false;
    std::optional<Transport> transport;
    Transport positionInfo;
    std::int64_t lastTimeInSamples = 0;

    int selectedWaveform = 0;
    ReferenceControls controls;

    std::vector<float> modulation;
    DriveStage driveStage;
    CrushStage crushStage;
    SampleHoldStage downsampler;
    std::array<SwitchableFilter, 2> filters;
    std::array<FilterSmoothers, 2> filterSmoothers;
    DryWetMix mix;
    ReferenceLfo lfo;
    ControlSmoother lfoSmoother;
};

} // namespace reference
