// The folders that an instance may read and write below.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

namespace zembra
{

/** The two roots of all files of a product. Tests and tools hand in folders of their own. */
struct FolderRoots
{
    /** What all users of a machine share: factory and designers' presets. */
    juce::File common = juce::File::getSpecialLocation (juce::File::commonApplicationDataDirectory);

    /** What belongs to one user: settings and own presets. */
    juce::File user = juce::File::getSpecialLocation (juce::File::userApplicationDataDirectory);

    /** Both roots inside one folder, which nothing else uses. */
    static FolderRoots inside (const juce::File& folder)
    {
        return { folder.getChildFile ("common"), folder.getChildFile ("user") };
    }
};

} // namespace zembra
