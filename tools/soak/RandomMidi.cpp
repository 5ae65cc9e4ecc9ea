// Makes random MIDI.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/soak/RandomMidi.h"

namespace soak
{

void fillWithMidi (juce::MidiBuffer& midi, juce::Random& random, int numSamples)
{
    midi.clear();

    for (int i = random.nextInt (20); --i >= 0;)
    {
        const auto channel = 1 + random.nextInt (16);
        const auto number = random.nextInt (128);
        const auto message =
            random.nextInt (8) == 0
                ? juce::MidiMessage::programChange (channel, number)
                : juce::MidiMessage::controllerEvent (channel, number, random.nextInt (128));
        midi.addEvent (message, random.nextInt (std::max (1, numSamples)));
    }
}

juce::MemoryBlock makeStateWithMidi (juce::AudioProcessor& processor)
{
    juce::MemoryBlock chunk;
    processor.getStateInformation (chunk);
    auto root = juce::AudioProcessor::getXmlFromBinary (chunk.getData(),
                                                        static_cast<int> (chunk.getSize()));
    root->setAttribute ("isMidiEnabled", 1);
    root->setAttribute ("isMidiProgramChangeEnabled", 1);
    root->deleteAllChildElementsWithTagName ("MIDIMAPPING");
    auto* mapping = root->createNewChildElement ("MIDIMAPPING");

    if (const auto* values = root->getChildByName ("PARAMS"))
        for (int i = 0; i < values->getNumAttributes(); ++i)
            mapping->setAttribute (values->getAttributeName (i), firstController + i);

    juce::AudioProcessor::copyXmlToBinary (*root, chunk);
    return chunk;
}

} // namespace soak
