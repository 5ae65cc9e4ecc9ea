// Asking an instance for its format.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/validate/Format.h"

namespace validate
{

Format getFormat (const juce::AudioPluginInstance& instance)
{
    const auto name = instance.getPluginDescription().pluginFormatName;
    return name == "VST"    ? Format::vst2
           : name == "VST3" ? Format::vst3
           : name == "LV2"  ? Format::lv2
                            : Format::other;
}

} // namespace validate
