// The values of the random automation.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/soak/RandomAutomation.h"

#include <iterator>
#include <limits>

namespace soak
{

RandomAutomation::RandomAutomation (juce::AudioProcessor& processorToMove, juce::int64 seed,
                                    bool isWildToUse)
    : random (seed),
      isWild (isWildToUse)
{
    for (auto* parameter : processorToMove.getParameters())
        if (parameter->isAutomatable())
            parameters.push_back (parameter);
}

float RandomAutomation::getValue (float present) noexcept
{
    constexpr auto inf = std::numeric_limits<float>::infinity();
    constexpr float wild[] = {
        std::numeric_limits<float>::quiet_NaN(),  inf,  -inf, -1.0f, 2.0f, 1e30f, -1e30f,
        std::numeric_limits<float>::denorm_min(), -0.0f
    };

    if (isWild && random.nextInt (3) == 0)
        return wild[random.nextInt (std::size (wild))];

    switch (random.nextInt (4))
    {
    case 0:
        return random.nextBool() ? 0.0f : 1.0f;
    case 1:
        return juce::jlimit (0.0f, 1.0f, present + 0.02f * (random.nextFloat() - 0.5f));
    default:
        return random.nextFloat();
    }
}

void RandomAutomation::move (juce::AudioProcessorParameter& parameter)
{
    parameter.setValue (getValue (parameter.getValue()));
}

void RandomAutomation::moveOne()
{
    move (*parameters[static_cast<size_t> (random.nextInt (static_cast<int> (parameters.size())))]);
}

void RandomAutomation::moveAll()
{
    for (auto* parameter : parameters)
        move (*parameter);
}

} // namespace soak
