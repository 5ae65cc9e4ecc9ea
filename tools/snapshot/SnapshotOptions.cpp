// Reads the command line of the snapshot tool.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/snapshot/SnapshotOptions.h"

namespace
{

constexpr int largestSide = 16384;
constexpr float largestScale = 8.0f;

juce::String quoted (const juce::String& text) { return "\"" + text + "\""; }

juce::String parseSize (const juce::String& text, SnapshotOptions& options)
{
    const auto w = text.upToFirstOccurrenceOf ("x", false, true);
    const auto h = text.fromFirstOccurrenceOf ("x", false, true);
    options.width = w.getIntValue();
    options.height = h.getIntValue();
    const auto isNumber = [] (const juce::String& part)
    { return part.isNotEmpty() && part.length() < 6 && part.containsOnly ("0123456789"); };
    const auto isSide = [] (int side) { return side >= 1 && side <= largestSide; };

    if (isNumber (w) && isNumber (h) && isSide (options.width) && isSide (options.height))
        return {};

    return quoted (text) + " is not a size; write it as 750x316, each side 1 to "
           + juce::String (largestSide);
}

juce::String parseScale (const juce::String& text, SnapshotOptions& options)
{
    options.scale = text.getFloatValue();

    if (text.containsOnly ("0123456789.") && options.scale > 0.0f && options.scale <= largestScale)
        return {};

    return quoted (text) + " is not a scale above 0 and up to 8";
}

juce::String parseSetting (const juce::String& text, SnapshotOptions& options)
{
    const auto id = text.upToFirstOccurrenceOf ("=", false, false);
    const auto value = text.fromFirstOccurrenceOf ("=", false, false);

    if (id.isEmpty() || value.isEmpty())
        return quoted (text) + " is not a setting; write it as drive=50";

    options.settings.push_back ({ id, value });
    return {};
}

juce::String parseOption (const juce::String& name, const juce::String& value,
                          SnapshotOptions& options)
{
    if (name == "--size")
        return parseSize (value, options);

    if (name == "--scale")
        return parseScale (value, options);

    if (name == "--set")
        return parseSetting (value, options);

    options.dialog = value;
    return {};
}

} // namespace

juce::String SnapshotOptions::getUsage()
{
    return "vorlo-snapshot OUT.png [--size WxH] [--scale N] [--set id=value]... [--show DIALOG]";
}

juce::String SnapshotOptions::parse (const juce::StringArray& arguments, SnapshotOptions& options)
{
    const juce::StringArray known{ "--size", "--scale", "--set", "--show" };

    for (int i = 0; i < arguments.size(); ++i)
    {
        const auto& argument = arguments[i];

        if (known.contains (argument))
        {
            if (i + 1 >= arguments.size())
                return argument + " needs a value";

            if (auto fault = parseOption (argument, arguments[++i], options); fault.isNotEmpty())
                return fault;
        }
        else if (argument.startsWith ("--"))
            return quoted (argument) + " is unknown; usage: " + getUsage();
        else if (options.outputPath.isNotEmpty())
            return quoted (argument) + " is one output too many";
        else
            options.outputPath = argument;
    }

    return options.outputPath.isEmpty() ? "usage: " + getUsage() : juce::String();
}
