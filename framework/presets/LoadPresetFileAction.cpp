// Doing and undoing of a load.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/presets/LoadPresetFileAction.h"

namespace zembra
{

PresetFileManager::LoadPresetFileAction::LoadPresetFileAction (PresetFileManager& managerToUse,
                                                               const juce::File& fileToLoad)
    : manager (managerToUse),
      file (fileToLoad)
{
    manager.writeStateTo (previousState);
}

bool PresetFileManager::LoadPresetFileAction::perform()
{
    manager.loadPreset (file, nullptr);
    return true;
}

bool PresetFileManager::LoadPresetFileAction::undo()
{
    manager.loadStateFrom (&previousState, {});
    return true;
}

} // namespace zembra
