// The blocks that an instance is given.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/validate/Player.h"

#include "tools/soak/OutputWatch.h"
#include "tools/soak/RandomMidi.h"
#include "tools/validate/Fault.h"

#include <cmath>

namespace validate
{

namespace
{

void lookForBadSamples (const juce::AudioBuffer<float>& block, int numChannels)
{
    for (int channel = 0; channel < numChannels; ++channel)
        for (int i = 0; i < block.getNumSamples(); ++i)
            if (const auto sample = block.getSample (channel, i);
                ! std::isfinite (sample) || soak::isSubnormal (sample))
                throw Fault{ "sample " + juce::String (i) + " of "
                             + juce::String (block.getNumSamples()) + " in channel "
                             + juce::String (channel + 1) + " is "
                             + (std::isfinite (sample) ? "subnormal" : juce::String (sample)) };
}

} // namespace

Player::Player (juce::AudioPluginInstance& instanceToUse, double sampleRateToUse,
                int longestBlockToUse)
    : instance (instanceToUse),
      sampleRate (sampleRateToUse),
      longestBlock (longestBlockToUse),
      takesMidi (instance.acceptsMidi()),
      memory (
          juce::jmax (instance.getTotalNumInputChannels(), instance.getTotalNumOutputChannels()),
          longestBlock),
      transport (1, soak::RandomTransport::Manners::sane)
{
    instance.setPlayHead (&transport);
    instance.prepareToPlay (sampleRate, longestBlock);
}

Player::~Player()
{
    instance.releaseResources();
    instance.setPlayHead (nullptr);
}

void Player::beRestless (juce::int64 seed) { restlessness.emplace (seed); }

int Player::getLength (double seconds) const noexcept
{
    return static_cast<int> (std::ceil (seconds * sampleRate));
}

juce::AudioBuffer<float> Player::play (const juce::AudioBuffer<float>& input, Trust trust)
{
    return playInBlocks (
        input, [this] { return longestBlock; }, trust);
}

juce::AudioBuffer<float> Player::playSilence (double seconds)
{
    juce::AudioBuffer<float> silence (getNumInputs(), getLength (seconds));
    silence.clear();
    return play (silence);
}

juce::AudioBuffer<float> Player::playInBlocks (const juce::AudioBuffer<float>& input,
                                               const std::function<int()>& nextSize, Trust trust)
{
    const auto numOutputs = instance.getTotalNumOutputChannels();
    juce::AudioBuffer<float> output (numOutputs, input.getNumSamples());

    for (int done = 0; done < input.getNumSamples();)
    {
        const auto length = juce::jmin (nextSize(), longestBlock, input.getNumSamples() - done);
        auto block = memory.get (length);
        block.clear();

        for (int i = 0; i < juce::jmin (input.getNumChannels(), getNumInputs()); ++i)
            block.copyFrom (i, 0, input, i, done, length);

        processBlock (block);
        expect (memory.isIntact(), "it writes beyond the ends of a block");

        if (trust == Trust::mustBeFinite)
            lookForBadSamples (block, numOutputs);

        for (int i = 0; i < numOutputs; ++i)
            output.copyFrom (i, done, block, i, 0, length);

        done += length;
    }

    return output;
}

void Player::processBlock (juce::AudioBuffer<float>& block)
{
    midi.clear();

    if (restlessness)
    {
        transport.advance (block.getNumSamples(), sampleRate);

        if (takesMidi && restlessness->nextInt (8) == 0)
            soak::fillWithMidi (midi, *restlessness, block.getNumSamples());
    }

    if (isBypassed)
        instance.processBlockBypassed (block, midi);
    else
        instance.processBlock (block, midi);
}

} // namespace validate
