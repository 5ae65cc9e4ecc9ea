// The formats that differ in what a host is told.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

namespace validate
{

/** The formats with manners of their own; anything else is `other`. */
enum class Format
{
    vst2,
    vst3,
    lv2,
    other
};

Format getFormat (const juce::AudioPluginInstance& instance);

} // namespace validate
