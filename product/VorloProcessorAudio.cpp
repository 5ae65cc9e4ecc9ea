// The signal chain of the product's processor, step by step.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/VorloProcessor.h"
#include "product/dsp/ChainLoop.h"

namespace
{

using Loop = ChainLoop<zembra::VectorFrames>;

/** The stretch of a block that begins at a sample. */
zembra::Chunk getChunk (int start, int blockLength, bool mayAlwaysMove)
{
    const auto rest = blockLength - start;
    const auto mayMove = start == 0 || mayAlwaysMove;
    return { start, mayMove ? std::min (rest, zembra::Control::maxFrames) : rest, blockLength };
}

} // namespace

void VorloProcessor::processAudio (juce::AudioBuffer<float>& buffer, juce::MidiBuffer&)
{
    const auto numSamples = buffer.getNumSamples();
    growBuffers (numSamples);
    followTransport();

    if (numSamples == 0)
        return;

    readSettings (buffer.getNumChannels());
    copyDry (buffer);
    runLfo (numSamples);

    // The stages from here on are only told what to do with a stretch of the block, in their order.
    // Then one loop takes each frame through all of them: see ChainLoop.
    auto largest = 0.0f;

    for (int start = 0; start < numSamples;)
    {
        const auto chunk =
            getChunk (start, numSamples, settings.isModulated() || ! settings.isFused);
        steerDrive (chunk);
        steerCrush (chunk);
        steerDownsample (chunk);
        steerFilter (chunk);
        steerMix (chunk);
        largest = std::max (largest, runLoop (buffer, chunk));
        start += chunk.length;
    }

    if (settings.isFused)
        dryWet.limit (buffer, numSamples, largest);
    else
        finishUnfused (buffer);
}

void VorloProcessor::readSettings (int numChannels)
{
    settings.drive = { drive.value, driveDepth.value };
    settings.crush = { crush.value, crushDepth.value };
    settings.downsamp = { downsamp.value, downsampDepth.value };
    settings.filter = { filterType,
                        filterEnabled,
                        { filterFreqs[0].value, filterFreqs[1].value },
                        { filterRes[0].value, filterRes[1].value },
                        filterFreqDepth.value,
                        filterResDepth.value };
    downsampler.matchChannels (numChannels);
    filterStage.begin (settings.filter);
    settings.numFiltered = std::min ({ 2, numOutputs, numChannels });
    settings.isFused = numChannels == settings.numFiltered && numChannels == numOutputs
                       && filterStage.isSettled (numChannels);
}

bool VorloProcessor::Settings::isModulated() const noexcept
{
    return drive.depth != 0.0f || crush.depth != 0.0f || downsamp.depth != 0.0f
           || filter.freqDepth != 0.0f || filter.resDepth != 0.0f;
}

void VorloProcessor::growBuffers (int numSamples)
{
    if (numSamples <= blockCapacity)
        return;

    blockCapacity = 2 * numSamples;

    for (auto* buffer : { &dryBuffer, &modBuffer })
        if (buffer->getNumChannels() != 2 || buffer->getNumSamples() != blockCapacity)
            buffer->setSize (2, blockCapacity, false, true);
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

void VorloProcessor::runLfo (int numSamples)
{
    if (! settings.isModulated())
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

const float* VorloProcessor::getLfo (const zembra::Chunk& chunk) const noexcept
{
    return modBuffer.getReadPointer (0, chunk.start);
}

void VorloProcessor::steerDrive (const zembra::Chunk& chunk)
{
    const auto [amount, depth] = settings.drive;

    if (depth == 0.0f)
        driveStage.steer (chunk, amount);
    else
        driveStage.steer (chunk, amount, depth, getLfo (chunk));
}

void VorloProcessor::steerCrush (const zembra::Chunk& chunk)
{
    const auto [amount, depth] = settings.crush;

    if (depth == 0.0f)
        crushStage.steer (amount);
    else
        crushStage.steer (chunk, amount, depth, getLfo (chunk));
}

void VorloProcessor::steerDownsample (const zembra::Chunk& chunk)
{
    const auto [amount, depth] = settings.downsamp;

    if (depth == 0.0f)
        downsampler.steer (amount);
    else
        downsampler.steer (chunk, amount, depth, getLfo (chunk));
}

void VorloProcessor::steerFilter (const zembra::Chunk& chunk)
{
    if (! settings.isFused || ! settings.filter.enabled)
        return;

    filterStage.steer (chunk, getLfo (chunk));
    filterStage.skipFade (settings.numFiltered, chunk.length);
}

void VorloProcessor::steerMix (const zembra::Chunk& chunk)
{
    if (! settings.isFused)
        return;

    const auto& dry = dryWet.steer (chunk).dry;

    // Silence, whatever the input: an infinity times 0 would be none.
    if (dry.isSteadyAt (0.0f))
        dryBuffer.clear (chunk.start, chunk.length);
}

float VorloProcessor::runLoop (juce::AudioBuffer<float>& buffer, const zembra::Chunk& chunk)
{
    const auto isFiltered = settings.isFused && settings.filter.enabled;
    const Loop::Stages stages{ driveStage, crushStage, downsampler,
                               isFiltered ? &filterStage : nullptr,
                               settings.isFused ? &dryWet.getControls() : nullptr };
    const auto* dry = dryBuffer.getReadPointer (0, chunk.start);
    const auto* dryRight =
        numInputs == 2 && numOutputs == 2 ? dryBuffer.getReadPointer (1, chunk.start) : dry;
    const auto counter = downsampler.getCounter();
    auto largest = 0.0f;

    for (int left = 0; left < buffer.getNumChannels(); left += 2)
    {
        const auto right = std::min (left + 1, buffer.getNumChannels() - 1);
        downsampler.setCounter (counter);
        Loop loop (stages,
                   { { left, right },
                     buffer.getWritePointer (left, chunk.start),
                     buffer.getWritePointer (right, chunk.start),
                     dry,
                     dryRight },
                   chunk.length);
        largest = std::max (largest, loop.run());
        driveStage.endPull();
    }

    if (! settings.isFused && settings.filter.enabled)
        filterStage.processChunk (buffer, settings.numFiltered, chunk, getLfo (chunk));

    return largest;
}

void VorloProcessor::finishUnfused (juce::AudioBuffer<float>& buffer)
{
    if (! settings.filter.enabled)
        filterStage.processOff (buffer, settings.numFiltered);

    dryWet.process (dryBuffer, buffer, buffer.getNumSamples());
}
