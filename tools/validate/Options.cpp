// Reading of the command line.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/validate/Options.h"

namespace validate
{

juce::String Options::parse (const juce::StringArray& words)
{
    for (int i = 0; i < words.size(); ++i)
    {
        const auto& word = words[i];

        if (word == "--thorough")
        {
            isThorough = true;
        }
        else if (word == "--only")
        {
            only = words[++i];
        }
        else if (word == "--seed" || word == "--repeat")
        {
            const auto& number = words[++i]; // empty beyond the end

            if (number.isEmpty() || ! number.containsOnly ("0123456789") || number.length() > 9
                || (word == "--repeat" && number.getIntValue() == 0))
                return word + " takes a whole number";

            if (word == "--seed")
                seed = number.getLargeIntValue();
            else
                numRepeats = number.getIntValue();
        }
        else if (word.startsWith ("-"))
        {
            return "unknown option " + word.quoted();
        }
        else
        {
            plugins.add (word);
        }
    }

    return plugins.isEmpty() ? "no plug-in is given" : "";
}

} // namespace validate
