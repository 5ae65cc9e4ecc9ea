// Where the presets of a product lie.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/FolderRoots.h"

namespace zembra
{

/** The preset folders below the two roots: the maker's folder, the product's, then one for each kind.
 */
struct PresetFolders
{
    /** Computes the paths; touches no disk. */
    PresetFolders (const FolderRoots& roots, const juce::String& companyName,
                   const juce::String& productName);

    /** Makes what is missing; a folder that can't be made is left out silently. */
    void createAll() const;

    juce::File factory, designers, user;
    juce::File midiFactory, midiUser;
    juce::File midiPrograms; ///< inside `user`: its presets are user presets too
};

} // namespace zembra
