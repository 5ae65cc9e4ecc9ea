// Making of instances.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/validate/Bench.h"

namespace validate
{

Instance Bench::open() const
{
    juce::String error;
    auto instance = factory (error);
    expect (instance != nullptr, "it doesn't open: " + error);
    return instance;
}

juce::String Bench::takeRemarks()
{
    auto text = remarks.joinIntoString (", ");
    remarks.clear();
    return text;
}

const std::vector<int>& Bench::getSteps()
{
    if (steps.empty())
        steps = countSteps (*open());

    return steps;
}

Values Bench::makeRandomValues() { return validate::makeRandomValues (getSteps(), random); }

} // namespace validate
