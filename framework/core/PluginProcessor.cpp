// Start-up, process call and about text of the frame.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/PluginProcessor.h"

#include "framework/core/HostParameter.h"
#include "framework/core/Settings.h"
#include "framework/midi/MidiProgramsTable.h"
#include "framework/midi/ParamsMidiMapper.h"
#include "framework/presets/PresetFileManager.h"

namespace zembra
{

namespace
{

juce::String describeFormat (juce::AudioProcessor::WrapperType type)
{
    switch (type)
    {
    case juce::AudioProcessor::wrapperType_VST:
        return "VST";
    case juce::AudioProcessor::wrapperType_VST3:
        return "VST3";
    case juce::AudioProcessor::wrapperType_AudioUnit:
        return "AU";
    case juce::AudioProcessor::wrapperType_AAX:
        return "AAX";
    case juce::AudioProcessor::wrapperType_Undefined:
    case juce::AudioProcessor::wrapperType_AudioUnitv3:
    case juce::AudioProcessor::wrapperType_Standalone:
    case juce::AudioProcessor::wrapperType_Unity:
    case juce::AudioProcessor::wrapperType_LV2:
        break;
    }

    return {};
}

} // namespace

PluginProcessor::PluginProcessor (const ProductInfo& infoToUse, const FolderRoots& roots,
                                  const BusesProperties& buses)
    : AudioProcessor (buses),
      info (infoToUse),
      folderRoots (roots)
{
}

PluginProcessor::~PluginProcessor() = default;

void PluginProcessor::endMessages()
{
#if JUCE_LINUX || JUCE_BSD
    // JUCE's wrappers for these have a message thread of their own, VST3 as long as no host lends its
    // own, and let it run on while the host deletes an instance on another.
    if (wrapperType == wrapperType_LV2 || wrapperType == wrapperType_VST3)
        heldMessages = std::make_unique<juce::MessageManagerLock>();
#endif

    stopTimer();
}

void PluginProcessor::setUpComplete()
{
    for (int i = 0; i < paramSet.getNumParams(); ++i)
        addParameter (new HostParameter (*this, *paramSet.getParam (i), i));

    const auto options = getSettingsFileOptions();
    const auto file = folderRoots.user.getChildFile (options.folderName)
                          .getChildFile (options.applicationName)
                          .withFileExtension (options.filenameSuffix);
    settings = std::make_unique<Settings> (file, options, paramSet);
    paramsMidiMapper = std::make_unique<ParamsMidiMapper> (*this);
    setUpPresets();
    setUpMidi();

    // After the default preset, which is loaded with nothing frozen.
    paramSet.setFrozenStates (settings->getFrozenStates());
    setUpProduct();

    if (wrapperType == wrapperType_AAX)
        takeDefaultsFromDefaultPreset();
}

void PluginProcessor::processBlock (juce::AudioBuffer<float>& buffer, juce::MidiBuffer& midi)
{
    // Left on: the host's own code on this thread may only gain by it.
    juce::FloatVectorOperations::disableDenormalisedNumberSupport (true);

    if (isMidiEnabled())
    {
        const RealtimeMarks::Scope mark (midiCalls);
        processMidi (midi);
    }

    processAudio (buffer, midi);
}

juce::AudioProcessorEditor* PluginProcessor::createEditor()
{
    auto* const editor = createProductEditor();

    if (editor != nullptr)
        initialiseEditor (*editor);

    return editor;
}

juce::String PluginProcessor::getAboutText() const
{
    const auto bits = sizeof (void*) == 8 ? "64b" : "";
    return getName() + " - " + describeFormat (wrapperType) + bits + " \n\n" + "version" + ": "
           + getVersionString() + "  (" + info.buildDate + ")";
}

std::unique_ptr<juce::XmlElement> PluginProcessor::createPresetRoot() const
{
    auto root = std::make_unique<juce::XmlElement> (getName());
    root->setAttribute ("company", getCompanyName());
    root->setAttribute ("version", getVersionString());
    return root;
}

juce::PropertiesFile::Options PluginProcessor::getSettingsFileOptions() const
{
    juce::PropertiesFile::Options options;
    options.applicationName = getName();
    options.folderName = getCompanyName() + juce::File::getSeparatorString() + getName();
    options.filenameSuffix = "settings";
    options.osxLibrarySubFolder = "Application Support";
    options.commonToAllUsers = false;
    options.ignoreCaseOfKeyNames = false;
    options.doNotSave = false;
    options.millisecondsBeforeSaving = 10;
    options.storageFormat = juce::PropertiesFile::storeAsXML;
    return options;
}

juce::String PluginProcessor::getParamId (int index) const
{
    const auto* param = paramSet.getParam (index);
    return param != nullptr ? param->getId() : juce::String();
}

} // namespace zembra
