// Listing and finding of presets by name.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/PresetLibrary.h"

#include "framework/core/XmlReader.h"
#include "framework/presets/PresetFileManager.h"
#include "framework/presets/PresetFolderWalk.h"
#include "framework/presets/PresetFolders.h"
#include "tools/render/Failure.h"

#include <algorithm>

namespace render
{

namespace
{

constexpr auto extension = ".ompreset";

} // namespace

PresetLibrary::PresetLibrary (zembra::PluginProcessor& reference)
{
    const auto& info = reference.getProductInfo();
    const zembra::PresetFolders folders ({}, info.companyName, info.name);
    add ("user", folders.user, reference);
    add ("designers", folders.designers, reference);
    add ("factory", folders.factory, reference);
}

void PresetLibrary::add (const char* name, const juce::File& folder,
                         zembra::PluginProcessor& reference)
{
    const auto numBefore = static_cast<std::ptrdiff_t> (presets.size());
    zembra::PresetFolderWalk walk (folder, extension, zembra::PresetFolderWalk::Hidden::included);

    while (walk.next())
        if (const auto file = walk.getFile();
            reference.getPresetFileManager().isValidPresetFile (file))
            presets.push_back ({ name,
                                 file.getRelativePathFrom (folder)
                                     .dropLastCharacters (juce::String (extension).length())
                                     .replaceCharacter ('\\', '/'),
                                 file });

    std::sort (presets.begin() + numBefore, presets.end(),
               [] (const auto& a, const auto& b) { return a.place < b.place; });
}

std::string PresetLibrary::list() const
{
    juce::String lines;

    for (const auto& preset : presets)
        lines << preset.folder << ": " << preset.place.replaceCharacters ("\r\n", "??") << "\n";

    return lines.toStdString();
}

juce::File PresetLibrary::find (const std::string& name) const
{
    const juce::String wanted (name);
    std::vector<juce::File> found;
    std::string paths;

    for (const auto& preset : presets)
        if (preset.place == wanted || preset.file.getFileNameWithoutExtension() == wanted)
        {
            found.push_back (preset.file);
            paths += (paths.empty() ? "" : ", ")
                     + inQuotes (preset.file.getFullPathName().toStdString());
        }

    if (found.empty())
        throw Failure ("there is no file and no preset " + inQuotes (name)
                       + " (--presets prints all of them)");

    if (found.size() > 1)
        throw Failure ("several presets are called " + inQuotes (name) + ": " + paths);

    return found.front();
}

void scanProgramPresets (zembra::MidiProgramsTable& programs)
{
    const auto folder = zembra::PresetFolders ({}, "Ombrel", "Vorlo").midiPrograms;

    if (folder.isDirectory())
        programs.scan (folder, extension,
                       [] (const juce::File& file)
                       { return file.isHidden() ? nullptr : zembra::XmlReader::parse (file); });
}

} // namespace render
