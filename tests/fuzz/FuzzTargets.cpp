// The targets: chunks, preset files, settings files, clipboard texts, MIDI.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/fuzz/FuzzTargets.h"

#include "framework/core/Settings.h"
#include "framework/core/XmlReader.h"
#include "framework/core/XmlWriter.h"
#include "framework/midi/ParamsMidiMapper.h"
#include "framework/presets/PresetFileManager.h"
#include "product/VorloProcessor.h"
#include "tests/support/TemporaryFolder.h"

namespace
{

/** One instance for all runs: making one costs more than a run. */
struct Instance
{
    static Instance& get()
    {
        static Instance instance;
        return instance;
    }

    zembra::PresetFileManager& presets() { return processor.getPresetFileManager(); }

    juce::MemoryBlock save()
    {
        juce::MemoryBlock chunk;
        processor.getStateInformation (chunk);
        return chunk;
    }

    void load (const void* data, size_t size)
    {
        processor.setStateInformation (data, static_cast<int> (size));
    }

    TemporaryFolder folder;
    VorloProcessor processor{ zembra::FolderRoots::inside (folder.get()) };
};

/** Any bytes, cut into the events of one block. */
juce::MidiBuffer cutIntoEvents (const std::uint8_t* data, std::size_t size)
{
    juce::MidiBuffer midi;

    for (int time = 0; size > 1; ++time)
    {
        const auto length = std::min (size - 1, std::size_t{ 1 } + (data[0] & 3u));
        midi.addEvent (data + 1, static_cast<int> (length), time % 64);
        data += 1 + length;
        size -= 1 + length;
    }

    return midi;
}

/** Processes a block of silence with MIDI; what is wrong with the block afterwards. */
std::string playBlock (VorloProcessor& processor, const juce::MidiBuffer& midi)
{
    auto played = midi;
    juce::AudioBuffer<float> block (2, 64);
    block.clear();
    processor.processBlock (block, played);

    if (played.data != midi.data)
        return "the MIDI has changed";

    for (int i = 0; i < block.getNumSamples(); ++i)
        if (! std::isfinite (block.getSample (0, i)))
            return "a sample isn't finite";

    return {};
}

std::string findValueOutOfRange (const zembra::ParamSet& params)
{
    for (const auto* param : params)
        if (! (param->getValue() >= param->getMinValue()
               && param->getValue() <= param->getMaxValue()))
            return "out of range: " + param->getId().toStdString();

    return {};
}

/** What is saved must load, and be saved as the same bytes. */
std::string checkRoundTrip (Instance& instance)
{
    const auto chunk = instance.save();

    if (zembra::XmlReader::unpack (chunk.getData(), static_cast<int> (chunk.getSize())) == nullptr)
        return "the saved chunk can't be read";

    instance.load (chunk.getData(), chunk.getSize());
    return instance.save() == chunk ? "" : "the second save differs";
}

} // namespace

std::string fuzz::loadChunk (const std::uint8_t* data, std::size_t size)
{
    auto& instance = Instance::get();
    instance.processor.getPreferencesStateManager().getValues().clear();
    const auto before = instance.save();
    const auto root = zembra::XmlReader::unpack (data, static_cast<int> (size));
    instance.load (data, size);

    if ((root == nullptr || ! root->getTagName().equalsIgnoreCase ("Vorlo"))
        && instance.save() != before)
        return "a refused chunk has changed something";

    if (auto problem = findValueOutOfRange (instance.processor.getParamSet()); ! problem.empty())
        return problem;

    return checkRoundTrip (instance);
}

std::string fuzz::loadPreset (const std::uint8_t* data, std::size_t size)
{
    auto& instance = Instance::get();
    auto& presets = instance.presets();
    const auto before = presets.getStateText();
    const auto tree =
        zembra::XmlReader::parse (std::string_view (reinterpret_cast<const char*> (data), size));
    const auto took = presets.loadStateFrom (tree.get(), {});

    if (! took && presets.getStateText() != before)
        return "a refused preset has changed something";

    if (auto problem = findValueOutOfRange (instance.processor.getParamSet()); ! problem.empty())
        return problem;

    const auto text = presets.getStateText();
    presets.loadStateText (text);
    return presets.getStateText() == text ? "" : "the second save differs";
}

std::string fuzz::pasteClipboard (const std::uint8_t* data, std::size_t size)
{
    auto& instance = Instance::get();
    instance.presets().loadStateText (
        juce::String::fromUTF8 (reinterpret_cast<const char*> (data), static_cast<int> (size)));
    return findValueOutOfRange (instance.processor.getParamSet());
}

std::string fuzz::playMidi (const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return {};

    auto& instance = Instance::get();
    auto& processor = instance.processor;
    auto& params = processor.getParamSet();
    processor.prepareToPlay (48000.0, 64);
    processor.setMidiEnabled (true);
    processor.setMidiProgramChangeEnabled (true);
    processor.setMidiChannel (data[1] % 17);
    const auto* learning = params.getParam (data[0] % params.getNumParams());
    processor.startLearning (learning->getId());
    auto problem = playBlock (processor, cutIntoEvents (data + 2, size - 2));
    processor.stopLearning();
    processor.deliverRealtimeChanges();

    if (problem.empty())
        problem = findValueOutOfRange (params);

    return problem.empty() ? checkRoundTrip (instance) : problem;
}

std::string fuzz::readSettings (const std::uint8_t* data, std::size_t size)
{
    static const TemporaryFolder folder;
    const auto file = folder.getChild ("Vorlo.settings");
    file.replaceWithData (data, size);
    auto& params = Instance::get().processor.getParamSet();

    {
        zembra::Settings settings (file, {}, params);
        settings.getFrozenStates();
        settings.getRecentFiles ("PARAMS");
        settings.setDefaultPreset ("PARAMS", "/default");
        settings.setLanguage ("en");
        settings.saveFrozenStates();

        if (! settings.flush())
            return {}; // what was there leaves no room for more
    }

    const zembra::Settings again (file, {}, params);
    const auto kept = again.getLanguage() == "en" && again.getDefaultPreset ("PARAMS") == "/default"
                      && again.getFrozenStates().size() == params.getNumParams();
    return kept ? "" : "what was set is not there";
}

const std::vector<fuzz::NamedTarget>& fuzz::getTargets()
{
    static const std::vector<NamedTarget> targets{
        { "chunk", loadChunk },          { "preset", loadPreset }, { "settings", readSettings },
        { "clipboard", pasteClipboard }, { "midi", playMidi },
    };
    return targets;
}
