// Choosing the list and the place in it.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/presets/PresetStepper.h"

namespace zembra
{

const juce::StringArray& PresetStepper::getListOf (const juce::String& currentPath) const
{
    // The bank must lie inside the folder: a preset straight in it counts as a user preset.
    const auto bank = juce::File (currentPath).getParentDirectory();

    if (bank.isAChildOf (factoryFolder))
        return factoryPresets;

    if (bank.isAChildOf (designersFolder))
        return designersPresets;

    return userPresets;
}

juce::String PresetStepper::step (const juce::String& currentPath, int delta) const
{
    if (currentPath.isEmpty())
        return getFallback (currentPath);

    const auto& list = getListOf (currentPath);
    const auto index = list.indexOf (currentPath);
    return index >= 0 ? list[juce::negativeAwareModulo (index + delta, list.size())]
                      : getFallback (currentPath);
}

juce::String PresetStepper::getFallback (const juce::String& currentPath) const
{
    if (currentPath.isNotEmpty())
        return getListOf (currentPath)[0];

    for (const auto* list : { &factoryPresets, &designersPresets, &userPresets })
        if (! list->isEmpty())
            return (*list)[0];

    return {};
}

} // namespace zembra
