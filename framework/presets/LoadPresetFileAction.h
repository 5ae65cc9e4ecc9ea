// The undoable loading of a preset.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/presets/PresetFileManager.h"

namespace zembra
{

/** One load as the undo manager keeps it, with the state from before: values, loaded preset and dirty
    mark. Two loads never coalesce. [message thread]
*/
class PresetFileManager::LoadPresetFileAction final : public juce::UndoableAction
{
public:
    LoadPresetFileAction (PresetFileManager& manager, const juce::File& file);

    bool perform() override;
    bool undo() override;

private:
    PresetFileManager& manager;
    const juce::File file;
    juce::XmlElement previousState{ "state" };

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (LoadPresetFileAction)
};

} // namespace zembra
