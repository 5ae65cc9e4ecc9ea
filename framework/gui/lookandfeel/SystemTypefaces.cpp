// Finds the system's typefaces by family and style.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/SystemTypefaces.h"

namespace zembra
{

namespace
{

/** The names that fonts give to a style, best first: an upright one isn't "Regular" everywhere. */
juce::StringArray getStyleNames (TypefaceStyle style)
{
    if (style == TypefaceStyle::bold)
        return { "Bold", "Demi Bold", "SemiBold" };

    if (style == TypefaceStyle::italic)
        return { "Italic", "Oblique", "Book Oblique", "Regular", "Book", "Roman" };

    return { "Regular", "Book", "Roman", "Normal" };
}

juce::String findFamily()
{
    const auto families = juce::Font::findAllTypefaceNames();

    for (const auto* family : { "Verdana", "DejaVu Sans" })
        if (families.contains (family))
            return family;

    return {};
}

} // namespace

juce::Typeface::Ptr getSystemTypeface (TypefaceStyle style)
{
    static const auto family = findFamily();

    if (family.isNotEmpty())
    {
        const auto available = juce::Font::findAllTypefaceStyles (family);

        for (const auto& name : getStyleNames (style))
            if (available.contains (name))
                return juce::Typeface::createSystemTypefaceFor (juce::Font (family, name, 14.0f));
    }

    const auto flags = style == TypefaceStyle::bold     ? juce::Font::bold
                       : style == TypefaceStyle::italic ? juce::Font::italic
                                                        : juce::Font::plain;
    return juce::Font::getDefaultTypefaceForFont (
        { juce::Font::getDefaultSansSerifFontName(), 14.0f, flags });
}

bool isFamilyAvailable (const juce::String& family)
{
    static const auto families = juce::Font::findAllTypefaceNames();
    return families.contains (family) || family == juce::Font::getDefaultSansSerifFontName()
           || family == juce::Font::getDefaultSerifFontName()
           || family == juce::Font::getDefaultMonospacedFontName();
}

} // namespace zembra
