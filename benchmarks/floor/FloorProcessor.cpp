// The least a plug-in can be: a gain, without parameters or an editor.
// SPDX-License-Identifier: GPL-3.0-or-later
#include <juce_audio_processors/juce_audio_processors.h>

namespace
{

class FloorProcessor final : public juce::AudioProcessor
{
public:
    FloorProcessor()
        : AudioProcessor (BusesProperties()
                              .withInput ("Input", juce::AudioChannelSet::stereo())
                              .withOutput ("Output", juce::AudioChannelSet::stereo()))
    {
    }

    const juce::String getName() const override { return "Vorlo Floor"; }
    void prepareToPlay (double, int) override {}
    void releaseResources() override {}
    void processBlock (juce::AudioBuffer<float>& buffer, juce::MidiBuffer&) override
    {
        buffer.applyGain (0.5f);
    }

    // The product's layouts: what they are is found out by trying, and that is most of what JUCE's
    // VST 2 wrapper does for an instance.
    bool isBusesLayoutSupported (const BusesLayout& layouts) const override
    {
        const auto in = layouts.getMainInputChannels(), out = layouts.getMainOutputChannels();
        return in >= 1 && out <= 2 && (in == out || (in == 1 && out == 2));
    }

    double getTailLengthSeconds() const override { return 0.0; }
    bool acceptsMidi() const override { return false; }
    bool producesMidi() const override { return false; }
    bool hasEditor() const override { return false; }
    juce::AudioProcessorEditor* createEditor() override { return nullptr; }
    int getNumPrograms() override { return 1; }
    int getCurrentProgram() override { return 0; }
    void setCurrentProgram (int) override {}
    const juce::String getProgramName (int) override { return {}; }
    void changeProgramName (int, const juce::String&) override {}
    void getStateInformation (juce::MemoryBlock&) override {}
    void setStateInformation (const void*, int) override {}
};

} // namespace

juce::AudioProcessor* JUCE_CALLTYPE createPluginFilter();
juce::AudioProcessor* JUCE_CALLTYPE createPluginFilter() { return new FloorProcessor(); }
