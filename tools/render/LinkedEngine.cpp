// Making of the built-in engine.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/LinkedEngine.h"

#include "framework/midi/ParamsMidiMapper.h"
#include "tools/render/Nowhere.h"

namespace render
{

zembra::FolderRoots getNowhere() { return zembra::FolderRoots::inside (juce::File (nowhere)); }

LinkedEngine::LinkedEngine (std::optional<std::int64_t> seed)
{
    if (seed)
        processor.getLfo().getRandom().setSeed (*seed);
}

void LinkedEngine::enableMidi (zembra::PluginProcessor& model)
{
    juce::XmlElement settings (model.getName());
    model.getParamsMidiMapper().saveToParent (settings);
    model.getFrozenPresetStateManager().saveToParent (settings);
    processor.getParamsMidiMapper().loadFromParent (settings);
    processor.getFrozenPresetStateManager().loadFromParent (settings);
    processor.setMidiChannel (model.getMidiChannel());
    processor.setMidiEnabled (true);
    processor.setMidiProgramChangeEnabled (true);
}

} // namespace render
