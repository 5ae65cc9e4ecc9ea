// An independent model of the audio engine, one sample and one channel at a time.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReferenceEngine.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <memory>
#include <random>

#if defined(__SSE2__)
#include <xmmintrin.h>
#endif

namespace reference
{

/** Flushes subnormals while it lives, where the processor can. */
class FlushToZero
{
public:
#if defined(__SSE2__)
    FlushToZero() { _mm_setcsr (saved | 0x8040u); }
    ~FlushToZero() { _mm_setcsr (saved); }
#else
    FlushToZero() = default;
#endif
    FlushToZero (const FlushToZero&) = delete;
    FlushToZero& operator= (const FlushToZero&) = delete;

private:
#if defined(__SSE2__)
    const unsigned int saved = _mm_getcsr();
#endif
};

ReferenceEngine::ReferenceEngine (int inputs, int outputs)
    : numInputs (inputs),
      numOutputs (outputs),
      mix (outputs)
{
    auto generator = std::make_shared<std::mt19937> (1u);
    setRandomSource ([generator] { return static_cast<float> ((*generator)() >> 8) * 0x1p-24f; });
}

void ReferenceEngine::setRandomSource (std::function<float()> source)
{
    lfo.random.nextRandom = std::move (source);
}

void ReferenceEngine::prepare (double newSampleRate, int blockSize)
{
    const auto rate = static_cast<float> (newSampleRate > 1.0 ? newSampleRate : 1.0);

    if (blockSize > blockCapacity)
        blockCapacity = static_cast<int> (std::bit_ceil (static_cast<unsigned> (2 * blockSize)));

    if (rate != sampleRate)
    {
        sampleRate = rate;
        lfoSmoother.prepare (static_cast<double> (rate), 1000.0);

        for (auto& channelFilter : filters)
            channelFilter.prepare (rate);
    }

    lfo.prepare (rate);

    if (transport)
    {
        controls.clock.read (*transport);
        controls.clock.update (false);
        controls.clock.takeTempo();
    }

    resetChain();
}

void ReferenceEngine::resetChain()
{
    lfoSmoother.reset();

    for (auto& channelFilter : filters)
        channelFilter.reset();

    downsampler.restart();
}

void ReferenceEngine::readTransport()
{
    if (! transport)
        return;

    controls.clock.read (*transport);
    controls.clock.update (false);
    positionInfo = *transport;

    if (! positionInfo.isPlaying)
        return;

    const auto jump = positionInfo.timeInSamples - lastTimeInSamples;
    const auto limit = std::int64_t{ 2 } * blockCapacity;
    lastTimeInSamples = positionInfo.timeInSamples;

    if ((jump > limit || (jump < -limit && ! positionInfo.isLooping)) && ! hostIsLogic)
        resetChain();
}

void ReferenceEngine::process (float* const* channels, int numChannels, int n)
{
    const FlushToZero flushToZero;

    if (n > blockCapacity)
        blockCapacity = 2 * n;

    readTransport();

    if (n <= 0)
        return;

    std::vector<std::vector<float>> dry;

    for (int c = 0; c < std::min ({ 2, numInputs, numChannels }); ++c)
        dry.emplace_back (channels[c], channels[c] + n);

    if (controls.modulates())
        fillModulation (n);

    drive (channels, numChannels, n);
    crush (channels, numChannels, n);
    downsample (channels, numChannels, n);
    filter (channels, numChannels, n);
    mix.process (dry, numInputs, channels, numChannels, n, controls.mixGains());
}

void ReferenceEngine::lockLfoPhase()
{
    const auto p = positionInfo.ppqPosition / static_cast<double> (controls.clock.beatsPerPeriod());
    lfo.lockPhase (static_cast<float> (p - std::trunc (p)));
}

void ReferenceEngine::fillModulation (int n)
{
    if (controls.lfoWaveform != selectedWaveform)
    {
        selectedWaveform = controls.lfoWaveform;
        lfo.setWaveform (controls.lfoWaveform);
    }

    lfo.setRate (controls.clock.lfoRate);

    if (controls.lfoSynced)
        lockLfoPhase();

    modulation.resize (static_cast<size_t> (n));

    for (auto& value : modulation)
        value = lfo.next();

    lfoSmoother.process (modulation.data(), n);

    for (auto& value : modulation)
        value = value > 0.0f ? std::min (value, 1.0f) : 0.0f;
}

void ReferenceEngine::drive (float* const* channels, int numChannels, int n)
{
    if (controls.driveDepth == 0.0f)
        return driveStage.processBlock (channels, numChannels, n, controls.driveAmount);

    const auto drivenChannels = std::min (numOutputs, numChannels);
    const auto reach = controls.driveAmount * controls.driveDepth;

    for (int i = 0; i < n; ++i)
    {
        const auto amount = controls.driveAmount - modulation[static_cast<size_t> (i)] * reach;
        driveStage.processSample (channels, drivenChannels, i, amount);
    }
}

void ReferenceEngine::crush (float* const* channels, int numChannels, int n)
{
    if (controls.crushDepth == 0.0f)
        return crushStage.processBlock (channels, numChannels, n, controls.crushAmount);

    for (int i = 0; i < n; ++i)
    {
        const auto l = modulation[static_cast<size_t> (i)];
        const auto amount = (1.0f - l * controls.crushDepth) * controls.crushAmount;
        CrushStage::processSample (channels, numChannels, i, amount);
    }
}

void ReferenceEngine::downsample (float* const* channels, int numChannels, int n)
{
    for (int i = 0; i < n; ++i)
    {
        auto amount = controls.downsampAmount;

        if (controls.downsampDepth != 0.0f)
            amount = (1.0f - modulation[static_cast<size_t> (i)] * controls.downsampDepth)
                     * controls.downsampAmount;

        const auto step = SampleHoldStage::stepFor (amount, sampleRate);
        downsampler.processSample (channels, numChannels, i, step);
    }
}

void ReferenceEngine::fillFilterCurves (int n, float* freqs, float* resonances)
{
    const auto type = static_cast<size_t> (controls.filterType);
    const auto freqDepth = controls.filterFreqDepth, resDepth = controls.filterResDepth;
    auto& smoothers = filterSmoothers[type];
    smoothers.freq.setTarget (controls.filters[type].freq + (freqDepth != 0.0f ? -20.0f : 0.0f));
    smoothers.res.setTarget (controls.filters[type].res);
    smoothers.freq.fill (freqs, n);
    smoothers.res.fill (resonances, n);

    for (int i = 0; i < n; ++i)
    {
        if (resDepth != 0.0f)
            resonances[i] = (1.0f - modulation[static_cast<size_t> (i)] * resDepth) * resonances[i];

        if (freqDepth != 0.0f)
        {
            const auto fall = modulation[static_cast<size_t> (i)] * -freqDepth;
            freqs[i] = freqs[i] + freqs[i] * fall;
            freqs[i] = freqs[i] + 20.0f;
        }

        freqs[i] = freqs[i] <= 2.0f ? 2.0f : freqs[i];
    }
}

// A filter that is off takes new targets for both types but lets no smoother advance.
void ReferenceEngine::processFilterOff (float* const* channels, int filteredChannels, int n)
{
    for (size_t type = 0; type < filterSmoothers.size(); ++type)
    {
        filterSmoothers[type].freq.setTarget (controls.filters[type].freq);
        filterSmoothers[type].res.setTarget (controls.filters[type].res);
    }

    for (int c = 0; c < filteredChannels; ++c)
        filters[static_cast<size_t> (c)].processBlock (channels[c], n);
}

void ReferenceEngine::filter (float* const* channels, int numChannels, int n)
{
    const auto filteredChannels = std::min ({ 2, numOutputs, numChannels });

    for (auto& channelFilter : filters)
        channelFilter.select (controls.filterType, controls.filterEnabled);

    if (! controls.filterEnabled)
        return processFilterOff (channels, filteredChannels, n);

    const auto length = static_cast<size_t> (n);
    std::vector<float> freqs (length), resonances (length);
    fillFilterCurves (n, freqs.data(), resonances.data());

    for (int c = 0; c < filteredChannels; ++c)
        for (int i = 0; i < n; ++i)
        {
            auto& channelFilter = filters[static_cast<size_t> (c)];
            channelFilter.selected().setCutoff (freqs[static_cast<size_t> (i)]);
            channelFilter.selected().setResonance (resonances[static_cast<size_t> (i)]);
            channels[c][i] = channelFilter.processSample (channels[c][i]);
        }
}

} // namespace reference
