// The signal chain of the product's processor, step by step.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/VorloProcessor.h"

namespace
{

constexpr float lowestCutoff = 20.0f;

} // namespace

void VorloProcessor::processAudio (juce::AudioBuffer<float>& buffer, juce::MidiBuffer&)
{
    growBuffers (buffer.getNumSamples());
    followTransport();

    if (buffer.getNumSamples() == 0)
        return;

    copyDry (buffer);
    runLfo (buffer.getNumSamples());
    runDrive (buffer);
    runCrush (buffer);
    runDownsample (buffer);
    runFilter (buffer);
    dryWet.process (dryBuffer, buffer, buffer.getNumSamples());
}

void VorloProcessor::growBuffers (int numSamples)
{
    if (numSamples <= blockCapacity)
        return;

    blockCapacity = 2 * numSamples;

    for (auto* buffer : { &dryBuffer, &modBuffer, &workBuffer })
        if (buffer->getNumChannels() != 2 || buffer->getNumSamples() != blockCapacity)
            buffer->setSize (2, blockCapacity, false, true);

    driveStage.ensureCapacity (2, numSamples);
}

juce::Optional<juce::AudioPlayHead::PositionInfo> VorloProcessor::pollPlayHead()
{
    auto* head = getPlayHead();
    auto position = head != nullptr ? head->getPosition() : juce::nullopt;

    if (! position)
        return {};

    // What the host leaves out stays as it was last.
    if (! position->getBpm())
        position->setBpm (positionInfo.getBpm());

    if (! position->getTimeSignature())
        position->setTimeSignature (positionInfo.getTimeSignature());

    const auto signature =
        position->getTimeSignature().orFallback (juce::AudioPlayHead::TimeSignature{});
    lfoClock.setTransport (position->getBpm().orFallback (120.0), signature.numerator,
                           signature.denominator);
    return position;
}

void VorloProcessor::followTransport()
{
    const auto position = pollPlayHead();

    if (! position)
        return;

    positionInfo = *position;

    if (! positionInfo.getIsPlaying())
        return;

    previousTimeInSamples = lastTimeInSamples;
    lastTimeInSamples = positionInfo.getTimeInSamples().orFallback (0);
    const auto jump =
        static_cast<double> (lastTimeInSamples) - static_cast<double> (previousTimeInSamples);
    const auto farthest = 2.0 * blockCapacity;
    const auto jumpedBack = jump < -farthest && ! positionInfo.getIsLooping();

    if ((jump > farthest || jumpedBack) && ! hostIsLogic)
        resetChain();
}

void VorloProcessor::copyDry (const juce::AudioBuffer<float>& buffer)
{
    const auto numChannels = std::min ({ 2, buffer.getNumChannels(), std::max (numInputs, 1) });

    for (int channel = 0; channel < numChannels; ++channel)
        dryBuffer.copyFrom (channel, 0, buffer, channel, 0, buffer.getNumSamples());
}

bool VorloProcessor::isModulated() const noexcept
{
    return driveDepth.value != 0.0f || crushDepth.value != 0.0f || downsampDepth.value != 0.0f
           || filterFreqDepth.value != 0.0f || filterResDepth.value != 0.0f;
}

void VorloProcessor::runLfo (int numSamples)
{
    if (! isModulated())
        return;

    lfo.setWaveform (lfoWaveform);
    lfo.setRate (lfoClock.getRate());

    if (lfoSynced)
        lockLfoToTransport();

    auto* curve = modBuffer.getWritePointer (0);
    lfo.fill (curve, numSamples);
    lfoSmoother.processSamples (curve, numSamples);

    // The smoother overshoots a step. The comparison also turns a NaN into 0.
    for (int i = 0; i < numSamples; ++i)
        curve[i] = curve[i] > 0.0f ? std::min (curve[i], 1.0f) : 0.0f;
}

void VorloProcessor::lockLfoToTransport() noexcept
{
    const auto periods = positionInfo.getPpqPosition().orFallback (0.0)
                         / static_cast<double> (lfoClock.getPeriodInBeats());
    lfo.setPosition (static_cast<float> (periods - std::trunc (periods)));
}

void VorloProcessor::runDrive (juce::AudioBuffer<float>& buffer)
{
    const auto numSamples = buffer.getNumSamples();
    const auto amount = drive.value.get();
    const auto depth = driveDepth.value.get();

    if (depth == 0.0f)
        return driveStage.process (buffer, numSamples, amount);

    const auto* curve = modBuffer.getReadPointer (0);
    auto* amounts = workBuffer.getWritePointer (0);

    for (int i = 0; i < numSamples; ++i)
        amounts[i] = amount - curve[i] * (amount * depth);

    driveStage.process (buffer, std::min (numOutputs, buffer.getNumChannels()), numSamples,
                        amounts);
}

void VorloProcessor::runCrush (juce::AudioBuffer<float>& buffer)
{
    const auto numSamples = buffer.getNumSamples();
    const auto amount = crush.value.get();
    const auto depth = crushDepth.value.get();

    if (depth == 0.0f)
        return crushStage.process (buffer, numSamples, amount);

    const auto* curve = modBuffer.getReadPointer (0);
    auto* amounts = workBuffer.getWritePointer (0);

    for (int i = 0; i < numSamples; ++i)
        amounts[i] = (1.0f - curve[i] * depth) * amount;

    CrushStage::process (buffer, buffer.getNumChannels(), numSamples, amounts);
}

void VorloProcessor::runDownsample (juce::AudioBuffer<float>& buffer)
{
    const auto numSamples = buffer.getNumSamples();
    const auto amount = downsamp.value.get();
    const auto depth = downsampDepth.value.get();

    if (depth == 0.0f)
        return downsampler.process (buffer, numSamples, amount);

    const auto* curve = modBuffer.getReadPointer (0);
    auto* amounts = workBuffer.getWritePointer (0);

    for (int i = 0; i < numSamples; ++i)
        amounts[i] = (1.0f - curve[i] * depth) * amount;

    downsampler.process (buffer, numSamples, amounts);
}

void VorloProcessor::switchFilters()
{
    for (auto& filter : filters)
    {
        filter.setActive (filterEnabled);
        filter.select (filterType);
    }
}

void VorloProcessor::runFilter (juce::AudioBuffer<float>& buffer)
{
    switchFilters();

    if (! filterEnabled)
        return runBypassedFilter (buffer);

    const auto isLowPass = filterType == 0;
    fillFilterCurves (isLowPass ? lowPassControls : hiPassControls, buffer.getNumSamples());

    if (isLowPass)
        runLadders (lowPass, buffer);
    else
        runLadders (hiPass, buffer);
}

void VorloProcessor::runBypassedFilter (juce::AudioBuffer<float>& buffer)
{
    for (auto* controls : { &lowPassControls, &hiPassControls })
    {
        controls->freqSmoother.setTarget (controls->freq.value);
        controls->resSmoother.setTarget (controls->res.value);
    }

    const auto numChannels = std::min ({ 2, numOutputs, buffer.getNumChannels() });

    for (int channel = 0; channel < numChannels; ++channel)
        filters[static_cast<size_t> (channel)].process (buffer.getWritePointer (channel),
                                                        buffer.getNumSamples());
}

void VorloProcessor::fillFilterCurves (FilterControls& controls, int numSamples)
{
    const auto freqDepth = filterFreqDepth.value.get();
    const auto resDepth = filterResDepth.value.get();
    auto* curve = modBuffer.getWritePointer (0);
    auto* freq = workBuffer.getWritePointer (0);
    auto* res = workBuffer.getWritePointer (1);

    // Under modulation the way from the knob down to 20 Hz is scaled.
    const auto offset = freqDepth != 0.0f ? -lowestCutoff : 0.0f;
    controls.freqSmoother.setTarget (controls.freq.value + offset);
    controls.resSmoother.setTarget (controls.res.value);
    controls.freqSmoother.fill (freq, numSamples);
    controls.resSmoother.fill (res, numSamples);

    if (resDepth != 0.0f)
        for (int i = 0; i < numSamples; ++i)
            res[i] = (1.0f - curve[i] * resDepth) * res[i];

    if (freqDepth != 0.0f)
        for (int i = 0; i < numSamples; ++i)
            freq[i] = freq[i] + freq[i] * (curve[i] * -freqDepth) + lowestCutoff;
}

template <typename Filter>
void VorloProcessor::runLadders (const std::array<Filter*, 2>& ladders,
                                 juce::AudioBuffer<float>& buffer)
{
    const auto* freq = workBuffer.getReadPointer (0);
    const auto* res = workBuffer.getReadPointer (1);
    const auto numChannels = std::min ({ 2, numOutputs, buffer.getNumChannels() });

    for (int channel = 0; channel < numChannels; ++channel)
    {
        auto& ladder = *ladders[static_cast<size_t> (channel)];
        auto& filter = filters[static_cast<size_t> (channel)];
        auto* samples = buffer.getWritePointer (channel);

        for (int i = 0; i < buffer.getNumSamples(); ++i)
        {
            constexpr float lowest = 2.0f;
            ladder.setCutoff (freq[i] > lowest ? freq[i] : lowest);
            ladder.setResonance (res[i]);
            samples[i] = filter.process (samples[i], ladder);
        }
    }
}
