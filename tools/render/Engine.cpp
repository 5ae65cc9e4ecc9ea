// Layout, parameters and blocks of an engine.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/Engine.h"

#include "tools/hosting/HostedPlugin.h"
#include "tools/render/Failure.h"

namespace render
{

void Engine::prepare (double sampleRate, int blockSize, int numChannels,
                      juce::AudioPlayHead& playHead)
{
    auto& processor = getProcessor();
    chooseLayout (numChannels);
    wideBlock.setSize (numProcessorChannels, blockSize);
    processor.setPlayHead (&playHead);
    processor.setNonRealtime (true);
    processor.setRateAndBufferSizeDetails (sampleRate, blockSize);
    processor.prepareToPlay (sampleRate, blockSize);
    flushParameters();
}

void Engine::chooseLayout (int numChannels)
{
    const auto channels = juce::AudioChannelSet::canonicalChannelSet (numChannels);
    juce::AudioProcessor::BusesLayout layout;
    layout.inputBuses.add (channels);
    layout.outputBuses.add (channels);

    // LV2 has no mono: what is fed on both sides comes out the same on both.
    numProcessorChannels = getProcessor().setBusesLayout (layout) ? numChannels : 2;
}

void Engine::setParameter (const juce::String& name, float normalised)
{
    auto* parameter = hosting::findParameter (getProcessor(), name);

    if (parameter == nullptr)
        throw Failure ("the plug-in has no parameter " + inQuotes (name.toStdString()));

    parameter->setValue (normalised);
    flushParameters();
}

void Engine::flushParameters()
{
    // Some formats hand parameters over with the next block, in an order of their own; one at a time
    // and with an empty block the order stays ours and no sound passes.
    juce::AudioBuffer<float> empty (numProcessorChannels, 0);
    getProcessor().processBlock (empty, noMidi);
    noMidi.clear();
}

void Engine::process (juce::AudioBuffer<float>& block, juce::MidiBuffer& midi)
{
    const auto numFrames = block.getNumSamples();

    if (numProcessorChannels == block.getNumChannels())
    {
        getProcessor().processBlock (block, midi);
    }
    else
    {
        juce::AudioBuffer<float> wide (wideBlock.getArrayOfWritePointers(), numProcessorChannels,
                                       numFrames);

        for (int channel = 0; channel < numProcessorChannels; ++channel)
            wide.copyFrom (channel, 0, block, 0, 0, numFrames);

        getProcessor().processBlock (wide, midi);
        block.copyFrom (0, 0, wide, 0, 0, numFrames);
    }

    midi.clear();
    blockDone();
}

} // namespace render
