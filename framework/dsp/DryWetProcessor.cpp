// Gains, link and mix of the last stage.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/dsp/DryWetProcessor.h"

#include "framework/core/ParamBool.h"
#include "framework/core/ParamFloat.h"
#include "framework/core/PluginProcessor.h"

namespace zembra
{

DryWetProcessor::DryWetProcessor (PluginProcessor& owner, double minDbToUse, double maxDb)
    : processor (owner),
      minDb (minDbToUse)
{
    dry = makeGain ("dry", "Dry", maxDb);
    wet = makeGain ("wet", "Wet", maxDb);
    bypassDrySignal = makeSwitch ("bypassDrySignal", "Bypass Dry Signal");
    bypassWetSignal = makeSwitch ("bypassWetSignal", "Bypass Wet Signal");
    dryWetLink = makeSwitch ("dryWetLink", "Dry Wet Link");
    dryWetLink->setMeta (true);
    dryWetLink->valueTexts.set (0, "unlinked");
    dryWetLink->valueTexts.set (1, "linked");
    params = { dry, wet, bypassDrySignal, bypassWetSignal, dryWetLink };

    for (auto* param : { dry, wet, dryWetLink, bypassDrySignal, bypassWetSignal })
        param->addListener (this);

    limiters.resize (static_cast<size_t> (processor.getTotalNumOutputChannels()));
}

DryWetProcessor::~DryWetProcessor()
{
    for (auto* param : params)
        param->removeListener (this);
}

Param* DryWetProcessor::makeGain (const char* id, const char* name, double maxDb)
{
    constexpr double defaultDb = -3.0;
    constexpr double stepDb = 0.1;
    auto* gain =
        new ParamFloat (id, name, &processor.getParamSet(), defaultDb, minDb, maxDb, stepDb, "dB");
    gain->valueTexts.set (static_cast<int> (minDb), "-inf");
    return gain;
}

Param* DryWetProcessor::makeSwitch (const char* id, const char* name)
{
    return new ParamBool (id, name, &processor.getParamSet(), 0.0, "");
}

float DryWetProcessor::decibelsToGain (double decibels) const
{
    return decibels <= minDb ? 0.0f : static_cast<float> (std::pow (10.0, decibels * 0.05));
}

void DryWetProcessor::paramChanged (Param* param, double plain, double normalised, int source)
{
    if (param == dry)
        moveDry (plain, source);
    else if (param == wet)
        moveWet (plain, source);
    else if (param == bypassDrySignal)
        dryBypassed = normalised > 0.5;
    else if (param == bypassWetSignal)
        wetBypassed = normalised > 0.5;
    else if (param == dryWetLink)
    {
        linked = normalised > 0.5;

        if (linked)
            takeLinkOffset();
    }
}

void DryWetProcessor::moveDry (double decibels, int source)
{
    dryGain = decibelsToGain (decibels);

    if (! linked || source == sourceLinked)
        return;

    if (source == sourceState)
        takeLinkOffset();
    else
        wet->setValue (decibels - linkOffset, sourceLinked);
}

void DryWetProcessor::moveWet (double decibels, int source)
{
    wetGain = decibelsToGain (decibels);

    if (! linked || source == sourceLinked)
        return;

    if (source == sourceState)
        takeLinkOffset();
    else
        dry->setValue (decibels + linkOffset, sourceLinked);
}

int DryWetProcessor::matchLimiters (int numChannels)
{
    const auto numOutputs = std::min (processor.getTotalNumOutputChannels(), numChannels);

    if (numOutputs > static_cast<int> (limiters.size()))
        limiters.resize (static_cast<size_t> (numOutputs));

    return numOutputs;
}

void DryWetProcessor::process (juce::AudioBuffer<float>& dryBuffer,
                               juce::AudioBuffer<float>& buffer, int numSamples)
{
    wetRamp.applyToBlock (buffer, numSamples, wetBypassed ? 0.0f : wetGain.get());
    dryRamp.applyToBlock (dryBuffer, numSamples, dryBypassed ? 0.0f : dryGain.get());

    const auto isStraight =
        processor.getTotalNumInputChannels() == processor.getTotalNumOutputChannels();
    const auto numOutputs = matchLimiters (buffer.getNumChannels());

    for (int channel = 0; channel < numOutputs; ++channel)
    {
        // A mono input feeds every output.
        buffer.addFrom (channel, 0, dryBuffer, isStraight ? channel : 0, 0, numSamples);
        limiters[static_cast<size_t> (channel)].process (buffer.getWritePointer (channel),
                                                         numSamples);
    }
}

MixControls& DryWetProcessor::steer (const Chunk& chunk) noexcept
{
    if (chunk.isFirst())
    {
        wetRamp.beginBlock (chunk.blockLength, wetBypassed ? 0.0f : wetGain.get(), controls.wet);
        dryRamp.beginBlock (chunk.blockLength, dryBypassed ? 0.0f : dryGain.get(), controls.dry);
    }
    else
    {
        wetRamp.rest (controls.wet);
        dryRamp.rest (controls.dry);
    }

    return controls;
}

void DryWetProcessor::limit (juce::AudioBuffer<float>& buffer, int numSamples, float largest)
{
    const auto numOutputs = matchLimiters (buffer.getNumChannels());

    for (int channel = 0; channel < numOutputs; ++channel)
    {
        auto& limiter = limiters[static_cast<size_t> (channel)];

        if (! limiter.passes (largest))
            limiter.process (buffer.getWritePointer (channel), numSamples);
    }
}

} // namespace zembra
