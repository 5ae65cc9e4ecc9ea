// Names and making of the preset folders.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/presets/PresetFolders.h"

namespace zembra
{

PresetFolders::PresetFolders (const FolderRoots& roots, const juce::String& companyName,
                              const juce::String& productName)
{
    const auto shared = roots.common.getChildFile (companyName).getChildFile (productName);
    const auto own = roots.user.getChildFile (companyName).getChildFile (productName);
    factory = shared.getChildFile ("presets");
    designers = shared.getChildFile ("DesignersPresets");
    user = own.getChildFile ("presets");
    midiFactory = shared.getChildFile ("midi");
    midiUser = own.getChildFile ("midi");
    midiPrograms = user.getChildFile ("MIDI Programs");
}

void PresetFolders::createAll() const
{
    for (const auto& folder : { factory, designers, user, midiFactory, midiUser, midiPrograms })
        folder.createDirectory();
}

} // namespace zembra
