// The one scan of the presets that program changes load.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/midi/MidiProgramsTable.h"

#include "framework/presets/PresetFolderWalk.h"

namespace zembra
{

namespace
{

constexpr int maxPrograms = 128; // what a program change can name

} // namespace

void MidiProgramsTable::scan (const juce::File& folder, const juce::String& extension,
                              const Loader& load)
{
    const juce::ScopedLock scopedLock (lock);

    if (scanned)
        return;

    scanned = true;
    folder.createDirectory();
    PresetFolderWalk walk (folder, extension, PresetFolderWalk::Hidden::included);

    while (size() < maxPrograms && walk.next())
        if (auto document = load (walk.getFile()))
            programs.push_back ({ walk.getFile(), std::move (document) });
}

const MidiProgramsTable::Program* MidiProgramsTable::get (int program) const noexcept
{
    return juce::isPositiveAndBelow (program, size()) ? &programs[static_cast<size_t> (program)]
                                                      : nullptr;
}

juce::File MidiProgramsTable::getFile (int program) const
{
    const auto* found = get (program);
    return found != nullptr ? found->file : juce::File();
}

const juce::XmlElement* MidiProgramsTable::getDocument (int program) const noexcept
{
    const auto* found = get (program);
    return found != nullptr ? found->document.get() : nullptr;
}

} // namespace zembra
