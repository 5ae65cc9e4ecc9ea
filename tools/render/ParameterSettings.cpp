// Reading and ordering of parameter values.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/ParameterSettings.h"

#include "product/VorloParameters.h"
#include "tools/render/Failure.h"
#include "tools/render/Numbers.h"
#include "tools/render/ParameterList.h"

#include <algorithm>
#include <optional>

namespace render
{

namespace
{

using zembra::Param;

std::optional<double> findNamedValue (const Param& param, const juce::String& text)
{
    for (juce::HashMap<int, juce::String>::Iterator entry (param.valueTexts); entry.next();)
        if (entry.getValue().equalsIgnoreCase (text))
            return entry.getKey();

    return {};
}

std::optional<double> findNumber (const Param& param, const juce::String& text)
{
    const auto& unit = param.getLabel();
    const auto hasUnit = unit.isNotEmpty() && text.endsWithIgnoreCase (unit);
    const auto number = (hasUnit ? text.dropLastCharacters (unit.length()) : text).trimEnd();
    return parseNumber<double> (number.toStdString());
}

double parseValue (const Param& param, const juce::String& text)
{
    const auto fail = [&] (const std::string& reason)
    {
        return Failure (param.getId().toStdString() + " " + reason + ", not "
                            + inQuotes (text.toStdString()),
                        Failure::usage);
    };

    if (const auto named = findNamedValue (param, text))
        return *named;

    const auto number = findNumber (param, text);

    if (! number || *number < param.getMinValue() || *number > param.getMaxValue())
        throw fail ("takes " + describeRange (param)
                    + (param.valueTexts.size() > 0 ? " or a name (--list prints them)" : ""));

    if (param.getType() != Param::typeFloat && *number != std::floor (*number))
        throw fail ("takes whole numbers");

    return *number;
}

ParameterSetting parseSetting (const zembra::ParamSet& params, const std::string& assignment)
{
    const auto equals = assignment.find ('=');

    if (equals == std::string::npos)
        throw Failure ("--set takes ID=VALUE, not " + inQuotes (assignment), Failure::usage);

    const auto id = assignment.substr (0, equals);
    const auto* param = params.getParam (juce::String (id));

    if (param == nullptr)
        throw Failure ("there is no parameter " + inQuotes (id) + " (--list prints all of them)",
                       Failure::usage);

    return { param, parseValue (*param, juce::String (assignment.substr (equals + 1)).trim()) };
}

/** The place of a setting in the order of all: first, in between, or last. */
int getRank (const ParameterSetting& setting)
{
    const auto& id = setting.param->getId();
    return id == paramId::lfoSyncOrFree ? 0 : id == paramId::dryWetLink ? 2 : 1;
}

} // namespace

std::vector<ParameterSetting> parseSettings (const zembra::ParamSet& params,
                                             const std::vector<std::string>& assignments)
{
    std::vector<ParameterSetting> settings;

    for (const auto& assignment : assignments)
    {
        const auto setting = parseSetting (params, assignment);
        std::erase_if (settings, [&] (const auto& s) { return s.param == setting.param; });
        settings.push_back (setting);
    }

    sortSettings (settings);
    return settings;
}

void sortSettings (std::vector<ParameterSetting>& settings)
{
    std::stable_sort (settings.begin(), settings.end(),
                      [] (const auto& a, const auto& b) { return getRank (a) < getRank (b); });
}

} // namespace render
