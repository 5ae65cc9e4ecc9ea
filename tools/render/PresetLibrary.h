// The presets on this machine.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/PluginProcessor.h"
#include "framework/midi/MidiProgramsTable.h"

#include <string>
#include <vector>

namespace render
{

/** The valid presets in the user's, the designers' and the factory folder, in this order, as they
    are on disk when this is made. Nothing is written. [message thread]
*/
class PresetLibrary final
{
public:
    /** @param reference  knows the product's names and what a valid preset is; its folders may be
                          others
    */
    explicit PresetLibrary (zembra::PluginProcessor& reference);

    /** One line for each preset: folder, bank and name, as "factory: Bass/Growl". */
    std::string list() const;

    /** The preset of a file name without extension, or of a bank and a name, as "Bass/Growl".
        @throws Failure  if there is none; or more than one, and then the message has all paths
    */
    juce::File find (const std::string& name) const;

private:
    struct Preset
    {
        const char* folder; ///< "user", "designers" or "factory"
        juce::String place; ///< the path inside the folder without extension, with slashes
        juce::File file;
    };

    void add (const char* name, const juce::File& folder, zembra::PluginProcessor& reference);

    std::vector<Preset> presets;
};

/** Gives MIDI programs the user's presets of the folder "MIDI Programs". Who makes the first
    processor of a process decides on them, so this is to be called before. A missing folder isn't
    made.
*/
void scanProgramPresets (zembra::MidiProgramsTable& programs);

} // namespace render
