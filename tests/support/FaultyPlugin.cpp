// The small plug-in, and what is wrong with it.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FaultyPlugin.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace
{

constexpr auto notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr auto subnormal = 1e-39f;

std::array<float, 2> sharedMemories{};

} // namespace

/** A value with a text that it can read; with steps or, if there are none, without. */
class FaultyPlugin::Parameter final : public HostedParameter
{
public:
    Parameter (FaultyPlugin& ownerToUse, juce::String nameToUse, int numStepsToUse, float initial)
        : owner (ownerToUse),
          name (std::move (nameToUse)),
          numSteps (numStepsToUse),
          defaultValue (initial),
          value (owner.has (Fault::startsElsewhere) ? 0.1f : initial)
    {
    }

    float getValue() const override { return value; }
    float getDefaultValue() const override { return defaultValue; }
    juce::String getName (int length) const override { return name.substring (0, length); }
    juce::String getLabel() const override { return {}; }
    juce::String getParameterID() const override { return name; }
    int getNumSteps() const override { return numSteps > 0 ? numSteps : 0x7fffffff; }
    bool isDiscrete() const override { return numSteps > 0; }

    void setValue (float newValue) override
    {
        if (owner.has (Fault::hasStuckParameter) && numSteps == 3)
            return;

        if (std::isfinite (newValue))
            store (juce::jlimit (0.0f, 1.0f, newValue));
        else if (owner.has (Fault::keepsNaN))
            store (newValue);

        if (this == owner.values[0])
            owner.engineGain = value.load();
    }

    void store (float newValue) { value = numSteps > 0 ? snap (newValue) : newValue; }

    juce::String getText (float shown, int) const override { return juce::String (shown, 4); }

    float getValueForText (const juce::String& text) const override
    {
        const auto number = text.getFloatValue();

        if (owner.has (Fault::trustsTexts))
            return number;

        if (owner.has (Fault::misreadsTexts) && number > 0.5f)
            return number - 0.001f;

        return std::isfinite (number) ? juce::jlimit (0.0f, 1.0f, number) : 0.0f;
    }

private:
    float snap (float x) const
    {
        const auto last = static_cast<float> (numSteps - 1);
        return std::round (x * last) / last;
    }

    FaultyPlugin& owner;
    const juce::String name;
    const int numSteps;
    const float defaultValue;
    std::atomic<float> value;
};

FaultyPlugin::FaultyPlugin (Fault faultToHave)
    : AudioPluginInstance (BusesProperties()
                               .withInput ("Input", juce::AudioChannelSet::stereo())
                               .withOutput ("Output", juce::AudioChannelSet::stereo())),
      fault (faultToHave)
{
    const auto add = [this] (const char* name, int numSteps, float initial)
    {
        auto parameter = std::make_unique<Parameter> (*this, name, numSteps, initial);
        auto* added = parameter.get();
        addHostedParameter (std::move (parameter));
        return added;
    };

    values = { add ("Gain", 0, 0.7f), add ("Choice", 3, 0.0f),
               add (has (Fault::hasTwinNames) ? "Choice" : "Switch", 2, 1.0f) };
}

void FaultyPlugin::fillInPluginDescription (juce::PluginDescription& description) const
{
    description.name = getName();
    description.pluginFormatName = "Test";
}

double FaultyPlugin::getTailLengthSeconds() const
{
    return has (Fault::hasNoTailEnd) ? std::numeric_limits<double>::infinity() : 0.0;
}

bool FaultyPlugin::isBusesLayoutSupported (const BusesLayout& layout) const
{
    const auto numChannels = layout.getMainInputChannels();
    return numChannels == layout.getMainOutputChannels() && (numChannels == 1 || numChannels == 2);
}

void FaultyPlugin::prepareToPlay (double sampleRate, int longestBlock)
{
    setRateAndBufferSizeDetails (sampleRate, longestBlock);
    memories.fill (0.0f);
    ++numPrepares;
}

juce::AudioProcessorEditor* FaultyPlugin::createEditor()
{
    return has (Fault::hasNoEditor) ? nullptr : new juce::GenericAudioProcessorEditor (*this);
}

void FaultyPlugin::setCurrentProgram (int index)
{
    if (! has (Fault::forgetsProgram))
        program = index;
}

float FaultyPlugin::getGain() noexcept
{
    const auto gain = engineGain.load();
    return has (Fault::preparesWrong) ? gain * (1.0f + 0.01f * static_cast<float> (numPrepares))
                                      : gain;
}

float FaultyPlugin::filter (float sample, float& memory) const noexcept
{
    memory += 0.3f * (sample - memory);

    // What isn't finite or is next to nothing goes.
    if (! has (Fault::keepsBadSamples)
        && ! (std::abs (memory) > 1e-20f && std::abs (memory) < 1e6f))
        memory = 0.0f;

    return memory;
}

void FaultyPlugin::processChannel (float* samples, int numSamples, float gain,
                                   float& memory) noexcept
{
    for (int i = 0; i < numSamples; ++i)
    {
        const auto sample = gain * filter (samples[i], memory);
        samples[i] = std::abs (sample) > 1e-20f || has (Fault::keepsBadSamples) ? sample : 0.0f;
    }
}

void FaultyPlugin::processBlock (juce::AudioBuffer<float>& block, juce::MidiBuffer&)
{
    const auto gain = getGain();
    auto& used = has (Fault::sharesItsMemory) ? sharedMemories : memories;

    if (has (Fault::dependsOnBlocks))
        memories.fill (0.0f);

    for (int i = 0; i < juce::jmin (2, block.getNumChannels()); ++i)
        processChannel (block.getWritePointer (i), block.getNumSamples(), gain,
                        used[static_cast<size_t> (i)]);

    spoil (block, gain);
    lastGain = gain;
}

/** The faults of the sound that are seen from outside the loop. */
void FaultyPlugin::spoil (juce::AudioBuffer<float>& block, float gain)
{
    const auto spoilIf = [&block] (bool isTrue, float sample)
    {
        if (isTrue && block.getNumSamples() > 0)
            block.setSample (0, block.getNumSamples() / 2, sample);
    };

    spoilIf (has (Fault::failsAtTheEnd) && gain >= 1.0f, notANumber);
    spoilIf (has (Fault::hatesJumps) && std::abs (gain - lastGain) > 0.5f, notANumber);
    spoilIf (has (Fault::readsValuesTwice) && ! (gain == engineGain.load()), notANumber);
    spoilIf (has (Fault::whispersAtHighRates) && getSampleRate() > 150000.0, subnormal);
    spoilIf (has (Fault::fearsMono) && getTotalNumInputChannels() == 1, notANumber);
    spoilIf (has (Fault::isBadWhileLoading) && isLoading.load(), notANumber);
    spoilIf (has (Fault::hums), 0.001f);

    if (has (Fault::isMuteAfterReset) && numResets > 0)
        block.clear();

    if (has (Fault::writesBeyondBlocks) && block.getNumSamples() == 0)
        block.getArrayOfWritePointers()[0][0] = 0.0f;

    if (has (Fault::latencyWanders))
        setLatencySamples (getLatencySamples() + 1);
}

void FaultyPlugin::processBlockBypassed (juce::AudioBuffer<float>& block, juce::MidiBuffer& midi)
{
    if (has (Fault::ignoresBypass))
        processBlock (block, midi);
}

/** Three floats, after a word that marks them. */
void FaultyPlugin::getStateInformation (juce::MemoryBlock& state)
{
    state.replaceAll ("Test", 4);

    for (const auto* parameter : values)
    {
        const auto value = parameter->getValue();
        state.append (&value, sizeof (value));
    }

    if (has (Fault::savesDifferently))
        state.append (&++numSaves, sizeof (numSaves));
}

void FaultyPlugin::setStateInformation (const void* data, int size)
{
    isLoading = true;
    const auto wanted = static_cast<int> (4 + values.size() * sizeof (float));
    std::array<float, 3> read{ notANumber, notANumber, notANumber };

    if (has (Fault::isBadWhileLoading))
        juce::Thread::sleep (2);

    if (size >= 4 && std::memcmp (data, "Test", 4) == 0
        && (size >= wanted || has (Fault::trustsLengths)))
    {
        std::memcpy (read.data(), static_cast<const char*> (data) + 4,
                     static_cast<size_t> (juce::jmin (size, wanted) - 4));

        for (size_t i = has (Fault::losesParameter) ? 1 : 0; i < values.size(); ++i)
            if (has (Fault::trustsStates) || has (Fault::trustsLengths)
                || (read[i] >= 0.0f && read[i] <= 1.0f))
                values[i]->store (read[i]);

        if (! has (Fault::restoresNumbersOnly))
            engineGain = values[0]->getValue();
    }

    isLoading = false;
}
