// The system's typefaces that the editor's texts are set in.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_graphics/juce_graphics.h>

namespace zembra
{

enum class TypefaceStyle
{
    regular,
    bold,
    italic
};

/** Verdana in a style; where it is missing DejaVu Sans, which has its proportions, and where that is
    missing too, whatever the system takes for its default sans-serif. Never null where the system
    has a font at all.
*/
juce::Typeface::Ptr getSystemTypeface (TypefaceStyle style);

/** True if a font can be set in the family that it names: a family of the system, in exactly this
    spelling, or one of the default families.
*/
bool isFamilyAvailable (const juce::String& family);

} // namespace zembra
