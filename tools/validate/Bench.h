// Where a plug-in is checked: makes its instances, and knows how hard to try.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/validate/Fault.h"
#include "tools/validate/Format.h"
#include "tools/validate/Values.h"

#include <juce_audio_processors/juce_audio_processors.h>

#include <functional>
#include <memory>

namespace validate
{

/** An instance, together with all that has to live as long as it does. */
using Instance = std::shared_ptr<juce::AudioPluginInstance>;

/** Makes an instance, or null and a line that says why not. */
using Factory = std::function<Instance (juce::String& error)>;

/** What every check is given. [message thread] */
class Bench final
{
public:
    /** @param seed  of everything random: the same seed does the same again */
    Bench (Factory factoryToUse, juce::int64 seed, bool isThoroughToUse)
        : factory (std::move (factoryToUse)),
          random (seed),
          isThorough (isThoroughToUse)
    {
    }

    /** Makes another instance; a Fault if there is none. */
    Instance open() const;

    juce::Random& getRandom() noexcept { return random; }

    /** Random values for all parameters, of which switches and choices stand at a step. */
    Values makeRandomValues();

    /** The number of values that each parameter has, 0 if it has more than a few. */
    const std::vector<int>& getSteps();

    /** How often to do something. */
    int choose (int quick, int thorough) const noexcept { return isThorough ? thorough : quick; }

    /** Adds a word to the line of a check that passes. */
    void remark (const juce::String& text) { remarks.add (text); }

    juce::String takeRemarks();

private:
    const Factory factory;
    juce::Random random;
    const bool isThorough;
    juce::StringArray remarks;
    std::vector<int> steps;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (Bench)
};

} // namespace validate
