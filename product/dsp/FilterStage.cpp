// How the ladders follow their knobs, and the paths for what fades.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/dsp/FilterStage.h"

namespace
{

constexpr float lowestModulated = 20.0f; // Hz, where the LFO pulls a cutoff to
constexpr float lowestCutoff = 2.0f;     // Hz

} // namespace

FilterStage::FilterStage()
{
    for (size_t channel = 0; channel < filters.size(); ++channel)
    {
        auto low = std::make_unique<VorloLowPassFilter>();
        auto high = std::make_unique<VorloHiPassFilter>();
        ladders[channel] = { low.get(), high.get() };
        filters[channel].add (std::move (low));
        filters[channel].add (std::move (high));
    }
}

void FilterStage::prepare (float sampleRate, int blockSize)
{
    for (auto& filter : filters)
        filter.prepare (sampleRate, blockSize);
}

void FilterStage::reset()
{
    for (auto& filter : filters)
        filter.reset();
}

void FilterStage::begin (const Settings& newSettings)
{
    settings = newSettings;

    for (auto& filter : filters)
    {
        filter.setActive (settings.enabled);
        filter.select (settings.type);
    }

    // A filter that is off takes new targets for both types, and lets nothing glide.
    for (size_t type = 0; ! settings.enabled && type < smoothers.size(); ++type)
    {
        smoothers[type].freq.setTarget (settings.freq[type]);
        smoothers[type].res.setTarget (settings.res[type]);
    }
}

bool FilterStage::isOff (int numChannels) const noexcept
{
    auto isOff = ! settings.enabled;

    for (size_t channel = 0; channel < static_cast<size_t> (numChannels); ++channel)
        isOff = isOff && filters[channel].isBypassed();

    return isOff;
}

bool FilterStage::isSettled (int numChannels) const noexcept
{
    auto isSettled = settings.enabled;

    for (size_t channel = 0; channel < static_cast<size_t> (numChannels); ++channel)
        isSettled = isSettled && ! filters[channel].isSwitching();

    return isSettled || isOff (numChannels);
}

LadderState<float>& FilterStage::getState (int channel) noexcept
{
    auto& ladder = ladders[static_cast<size_t> (channel)];
    return settings.type == lowPass ? ladder.low->getState() : ladder.high->getState();
}

void FilterStage::skipFade (int numChannels, int numSamples) noexcept
{
    for (size_t channel = 0; channel < static_cast<size_t> (numChannels); ++channel)
        filters[channel].skipFade (numSamples);
}

bool FilterStage::isModulated() const noexcept
{
    return settings.freqDepth != 0.0f || settings.resDepth != 0.0f;
}

void FilterStage::setTargets() noexcept
{
    const auto type = static_cast<size_t> (settings.type);
    // Under modulation the way from the knob down to 20 Hz is scaled.
    const auto offset = settings.freqDepth != 0.0f ? -lowestModulated : 0.0f;
    smoothers[type].freq.setTarget (settings.freq[type] + offset);
    smoothers[type].res.setTarget (settings.res[type]);
}

void FilterStage::fillCurves (Curves& curves, int numSamples, const float* lfo) noexcept
{
    auto& [freq, res] = curves;
    auto& smoother = smoothers[static_cast<size_t> (settings.type)];
    smoother.freq.fill (freq.data(), numSamples);
    smoother.res.fill (res.data(), numSamples);

    if (settings.resDepth != 0.0f)
        for (size_t i = 0; i < static_cast<size_t> (numSamples); ++i)
            res[i] = (1.0f - lfo[i] * settings.resDepth) * res[i];

    if (settings.freqDepth != 0.0f) // ends above the lowest cutoff
        for (size_t i = 0; i < static_cast<size_t> (numSamples); ++i)
            freq[i] = freq[i] + freq[i] * (lfo[i] * -settings.freqDepth) + lowestModulated;
    else
        for (size_t i = 0; i < static_cast<size_t> (numSamples); ++i)
            freq[i] = freq[i] > lowestCutoff ? freq[i] : lowestCutoff;
}

void FilterStage::steer (const zembra::Chunk& chunk, const float* lfo) noexcept
{
    if (settings.type == lowPass)
        steer (*ladders[0].low, *ladders[1].low, chunk, lfo);
    else
        steer (*ladders[0].high, *ladders[1].high, chunk, lfo);
}

template <typename Filter>
void FilterStage::steer (Filter& first, Filter& second, const zembra::Chunk& chunk,
                         const float* lfo) noexcept
{
    setTargets();

    if (! isModulated() && smoothers[static_cast<size_t> (settings.type)].areDone())
    {
        steerSteadily (first);
    }
    else
    {
        Curves curves;
        fillCurves (curves, chunk.length, lfo);

        if (isModulated())
            first.trace (curves.freq.data(), curves.res.data(), chunk.length, tuning);
        else
            steerExactly (first, curves, chunk.length);
    }

    second.tuneLike (first);
}

template <typename Filter>
void FilterStage::steerSteadily (Filter& filter) noexcept
{
    const auto& smoother = smoothers[static_cast<size_t> (settings.type)];
    filter.setCutoff (std::max (smoother.freq.getTarget(), lowestCutoff));
    filter.setResonance (smoother.res.getTarget());
    tuning.assign (filter.getTuning(), [] (auto& control, float value) { control.set (value); });
}

template <typename Filter>
void FilterStage::steerExactly (Filter& filter, const Curves& curves, int numSamples) noexcept
{
    for (size_t i = 0; i < static_cast<size_t> (numSamples); ++i)
    {
        filter.setCutoff (curves.freq[i]);
        filter.setResonance (curves.res[i]);
        tuning.assign (filter.getTuning(),
                       [i] (auto& control, float value) { control.move()[i] = value; });
    }
}

void FilterStage::processChunk (juce::AudioBuffer<float>& buffer, int numChannels,
                                const zembra::Chunk& chunk, const float* lfo)
{
    Curves curves;
    setTargets();
    fillCurves (curves, chunk.length, lfo);

    for (int channel = 0; channel < numChannels; ++channel)
    {
        auto& [low, high] = ladders[static_cast<size_t> (channel)];
        auto& owner = filters[static_cast<size_t> (channel)];
        auto* samples = buffer.getWritePointer (channel, chunk.start);

        if (settings.type == lowPass)
            processChunk (*low, owner, samples, curves, chunk.length);
        else
            processChunk (*high, owner, samples, curves, chunk.length);
    }
}

template <typename Filter>
void FilterStage::processChunk (Filter& filter, zembra::SwitchableFilter& owner, float* samples,
                                const Curves& curves, int numSamples)
{
    for (size_t i = 0; i < static_cast<size_t> (numSamples); ++i)
    {
        filter.setCutoff (curves.freq[i]);
        filter.setResonance (curves.res[i]);
        samples[i] = owner.process (samples[i], filter);
    }
}

void FilterStage::processOff (juce::AudioBuffer<float>& buffer, int numChannels)
{
    for (int channel = 0; channel < numChannels; ++channel)
        filters[static_cast<size_t> (channel)].process (buffer.getWritePointer (channel),
                                                        buffer.getNumSamples());
}
