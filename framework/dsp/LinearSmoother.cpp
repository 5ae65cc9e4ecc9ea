// Glides of the control values.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/dsp/LinearSmoother.h"

#include <algorithm>
#include <cmath>

namespace zembra
{

void LinearSmoother::setTarget (float newTarget) noexcept
{
    if (newTarget == target)
        return;

    target = newTarget;
    done = false;
    increment = (target - current) / static_cast<float> (steps);
}

void LinearSmoother::fill (float* out, int numSamples) noexcept
{
    auto* const end = out + numSamples;

    if (! done)
    {
        // The last step of a glide sets the target itself, so that no rounding is left over.
        const auto stepsLeft = std::round ((target - current) / increment) - 1.0f;
        const auto left = stepsLeft > 0.0f ? static_cast<int> (stepsLeft) : 0;

        for (int i = std::min (left, numSamples); --i >= 0;)
            *out++ = current += increment;

        if (left > numSamples)
            return;

        current = target;
        increment = 0.0f;
        done = true;
    }

    std::fill (out, end, target);
}

} // namespace zembra
