// The lines of the parameter list.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/ParameterList.h"

#include <cstdio>

namespace render
{

namespace
{

using zembra::Param;

std::string formatNumber (double number)
{
    char text[32];
    std::snprintf (text, sizeof (text), "%.10g", number);
    return text;
}

std::string padded (const std::string& text, size_t width)
{
    return text + std::string (text.size() < width ? width - text.size() : 0, ' ') + "  ";
}

/** The default as one would type it: by its name if it has one. */
std::string describeDefault (const Param& param)
{
    const auto plain = param.getDefaultValue();
    const auto named = param.valueTexts[juce::roundToInt (plain)];
    return named.isNotEmpty() ? named.toStdString() : formatNumber (plain);
}

std::string describeNamedValues (const Param& param)
{
    std::string text;

    for (auto value = static_cast<int> (param.getMinValue());
         value <= static_cast<int> (param.getMaxValue()); ++value)
        if (param.valueTexts.contains (value))
            text += (text.empty() ? "" : ", ") + std::to_string (value) + " = "
                    + param.valueTexts[value].toStdString();

    return text;
}

std::string describe (const Param& param)
{
    auto line = padded (param.getId().toStdString(), 18)
                + padded (param.getName().toStdString(), 21) + padded (describeRange (param), 14)
                + padded ("default " + describeDefault (param), 16) + describeNamedValues (param);
    return line.substr (0, line.find_last_not_of (' ') + 1) + '\n';
}

} // namespace

std::string describeRange (const Param& param)
{
    auto range = formatNumber (param.getMinValue()) + " to " + formatNumber (param.getMaxValue());

    if (const auto& unit = param.getLabel(); unit.isNotEmpty())
        range.append (" ").append (unit.toStdString());

    return range;
}

std::string listParameters (const zembra::ParamSet& params)
{
    std::string text;

    for (const auto* param : params)
        text += describe (*param);

    return text;
}

} // namespace render
