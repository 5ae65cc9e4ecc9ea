// The soft clip of the drive and of the filters.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/SampleMath.h"

namespace zembra
{

/** A rational approximation of tanh, p / (p + 12) with p = ((u + 3) u + 6) u and u = 2|x|, which is
    the Padé-like quotient of the exponential's series; odd but for a slight asymmetry of the two
    sides' gains.
*/
class SoftClipper final
{
public:
    /** @param asymmetry  how much softer the positive side is driven than the negative one */
    explicit SoftClipper (float asymmetry) noexcept
        : positiveFactor ((1.0f - asymmetry) * 2.0f),
          negativeFactor ((asymmetry + 1.0f) * -2.0f)
    {
    }

    /** Clips samples to the open range -1 to 1. A NaN stays one. [audio thread] */
    template <typename Sample>
    Sample clip (Sample x) const noexcept
    {
        // Of the two products one is positive: the one by the factor of the sample's own side. So
        // neither side needs a branch, which a ladder's feedback would have to wait for.
        const auto u = larger (x * Sample (negativeFactor), x * Sample (positiveFactor));
        const auto p = ((u + Sample (3.0f)) * u + Sample (6.0f)) * u;
        return withSign (p / (p + Sample (12.0f)), x);
    }

private:
    float positiveFactor, negativeFactor;
};

} // namespace zembra
