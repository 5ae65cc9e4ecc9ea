// Which preset comes next to the current one.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

namespace zembra
{

/** The lists and folders of a preset family, and the rules for stepping through them. */
struct PresetStepper
{
    juce::StringArray factoryPresets, designersPresets, userPresets;
    juce::File factoryFolder, designersFolder;

    /** The preset `delta` places further in the list of the current one, around the ends; where the
        current one isn't listed, the fallback.
        @param currentPath  full path, empty if there is no current preset
        @returns            a full path, empty if there is nothing to load
    */
    juce::String step (const juce::String& currentPath, int delta) const;

    /** The first preset of the current one's list, or with no current preset of the first list that
        has any.
    */
    juce::String getFallback (const juce::String& currentPath) const;

private:
    const juce::StringArray& getListOf (const juce::String& currentPath) const;
};

} // namespace zembra
