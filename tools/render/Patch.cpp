// Reading of chunks and presets into a processor, and writing of presets.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/Patch.h"

#include "framework/core/XmlReader.h"
#include "framework/presets/PresetFileManager.h"
#include "product/VorloParameters.h"
#include "tools/render/Failure.h"
#include "tools/render/PresetLibrary.h"
#include "tools/render/SmallFile.h"

#include <algorithm>

namespace render
{

namespace
{

void loadState (zembra::PluginProcessor& reference, const std::string& path)
{
    const auto chunk = readSmallFile (path);
    const auto size = static_cast<int> (chunk.getSize());
    const auto root = zembra::XmlReader::unpack (chunk.getData(), size);

    // What the processor itself refuses in silence.
    if (root == nullptr || ! root->getTagName().equalsIgnoreCase (reference.getName()))
        throw Failure (inQuotes (path) + " is no saved state of Vorlo");

    reference.setStateInformation (chunk.getData(), size);
}

void loadPreset (zembra::PluginProcessor& reference, const std::string& nameOrFile)
{
    auto& manager = reference.getPresetFileManager();
    const auto given = toFile (nameOrFile);
    const auto file = given.existsAsFile() ? given : PresetLibrary (reference).find (nameOrFile);
    const auto tree = manager.isValidPresetFile (file) ? zembra::XmlReader::parse (file) : nullptr;

    if (! manager.loadStateFrom (tree.get(), file))
        throw Failure (inQuotes (file.getFullPathName().toStdString()) + " is no valid preset");
}

/** All values of the processor, but where the given ones say something else. */
std::vector<ParameterSetting> completeSettings (zembra::PluginProcessor& reference,
                                                const std::vector<ParameterSetting>& given)
{
    std::vector<ParameterSetting> all;

    for (const auto* param : reference.getParamSet())
    {
        const auto known = std::ranges::find (given, param, &ParameterSetting::param);
        all.push_back (known != given.end() ? *known
                                            : ParameterSetting{ param, param->getValue() });
    }

    sortSettings (all);
    return all;
}

/** Sets values as they are, whatever the link and the sync switch were before. */
void setValues (zembra::PluginProcessor& reference, const std::vector<ParameterSetting>& settings)
{
    auto& params = reference.getParamSet();

    if (auto* link = params.getParam (juce::String (paramId::dryWetLink)))
        link->setValue (0.0, zembra::sourceHost);

    for (const auto& [param, plain] : settings)
        params.getParam (param->getId())->setValue (plain, zembra::sourceHost);
}

} // namespace

std::vector<ParameterSetting> applyPatch (zembra::PluginProcessor& reference,
                                          const RenderOptions& options)
{
    auto given = parseSettings (reference.getParamSet(), options.assignments);

    if (! options.state.empty())
        loadState (reference, options.state);

    if (! options.preset.empty())
        loadPreset (reference, options.preset);

    if (options.state.empty() && options.preset.empty() && options.presetToSave.empty())
        return given;

    const auto all = completeSettings (reference, given);

    if (! given.empty())
        setValues (reference, all);

    return options.state.empty() && options.preset.empty() ? given : all;
}

void savePreset (zembra::PluginProcessor& reference, const std::string& path)
{
    if (! reference.getPresetFileManager().savePresetToFile (toFile (path)))
        throw Failure ("can't write " + inQuotes (path));
}

} // namespace render
