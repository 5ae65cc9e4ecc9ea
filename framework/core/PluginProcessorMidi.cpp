// MIDI of the frame: switches, learning, controllers and program changes.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/PluginProcessor.h"

#include "framework/core/XmlReader.h"
#include "framework/midi/MidiProgramsTable.h"
#include "framework/midi/ParamsMidiMapper.h"
#include "framework/presets/PresetFileManager.h"
#include "framework/presets/PresetFolders.h"

namespace zembra
{

void PluginProcessor::setUpMidi()
{
    constexpr int deliveryPeriodMs = 30;
    const auto loadValid = [this] (const juce::File& file)
    { return presetFileManager->isValidPresetFile (file) ? XmlReader::parse (file) : nullptr; };

    midiPrograms = std::make_unique<juce::SharedResourcePointer<MidiProgramsTable>>();
    (*midiPrograms)
        ->scan (PresetFolders (folderRoots, getCompanyName(), getName()).midiPrograms,
                presetFileManager->getExtension(), loadValid);

    realtimeMail.setNumParams (paramSet.getNumParams());
    startTimer (deliveryPeriodMs);
}

void PluginProcessor::setMidiEnabled (bool shouldBeEnabled)
{
    if (midiEnabled.exchange (shouldBeEnabled) != shouldBeEnabled)
        midiListeners.call ([&] (Listener& l) { l.midiEnabledChanged (this, shouldBeEnabled); });
}

void PluginProcessor::setMidiProgramChangeEnabled (bool shouldBeEnabled)
{
    if (midiProgramChangeEnabled.exchange (shouldBeEnabled) != shouldBeEnabled)
        midiListeners.call ([&] (Listener& l)
                            { l.midiProgramChangeEnabledChanged (this, shouldBeEnabled); });
}

void PluginProcessor::setMidiChannel (int channel)
{
    midiChannel = channel;
    midiListeners.call ([&] (Listener& l) { l.midiChannelChanged (this, channel); });
}

void PluginProcessor::addListener (Listener* listener)
{
    if (listener == nullptr)
        return;

    midiListeners.add (listener);
    listener->midiEnabledChanged (this, isMidiEnabled());
}

void PluginProcessor::startLearning (const juce::String& paramId)
{
    setMidiEnabled (true);
    auto* param = paramSet.getParam (paramId);

    if (param == nullptr || param == midiLearnParam)
        return;

    midiLearnParam = param;

    if (++midiLearnCount == 1)
        midiListeners.call ([this] (Listener& l) { l.midiLearnChanged (this); });
}

void PluginProcessor::stopLearning()
{
    if (--midiLearnCount >= 1)
        return;

    midiLearnParam = nullptr;
    midiLearnCount = 0;
    midiListeners.call ([this] (Listener& l) { l.midiLearnChanged (this); });
}

void PluginProcessor::processMidi (juce::MidiBuffer& midi)
{
    constexpr int controller = 0xb0, programChange = 0xc0;

    for (const auto event : midi)
    {
        const auto kind = event.data[0] & 0xf0;

        if (kind == controller && event.numBytes >= 3)
            handleController ((event.data[0] & 0x0f) + 1, event.data[1], event.data[2]);
        else if (kind == programChange && event.numBytes >= 2 && isMidiProgramChangeEnabled()
                 && event.data[1] < (*midiPrograms)->size())
            realtimeMail.postProgram (event.data[1]);
    }
}

void PluginProcessor::handleController (int channel, int cc, int value)
{
    if (const auto wanted = getMidiChannel(); wanted != 0 && wanted != channel)
        return;

    // The event that teaches a mapping also moves the parameter.
    if (const auto* learning = getMidiLearnParam())
        paramsMidiMapper->setMapping (cc, learning->getId());

    paramsMidiMapper->handleController (cc, value);
}

void PluginProcessor::deliverRealtimeChanges()
{
    realtimeMail.takeParams (
        [this] (int index)
        {
            const auto* param = paramSet.getParam (index);
            tellHost (index, param->normalise (param->getValue()), sourceMidi);
        });

    presetFileManager->deliverDirtyChange();
    midiPresetFileManager->deliverDirtyChange();
    loadPendingProgram();
}

void PluginProcessor::loadPendingProgram()
{
    const auto program = realtimeMail.takeProgram();

    // The tree was parsed at start-up and is shared: nothing is read from disk for its values.
    if (const auto* document = (*midiPrograms)->getDocument (program))
        presetFileManager->loadStateFrom (document, (*midiPrograms)->getFile (program));
}

} // namespace zembra
