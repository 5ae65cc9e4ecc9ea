// The soft clip of the drive and of the filters.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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

    /** Clips one sample to the open range -1 to 1. A NaN stays one. [audio thread] */
    float clip (float x) const noexcept
    {
        return x >= 0.0f ? saturate (x * positiveFactor) : -saturate (x * negativeFactor);
    }

private:
    static float saturate (float u) noexcept
    {
        const auto p = ((u + 3.0f) * u + 6.0f) * u;
        return p / (p + 12.0f);
    }

    float positiveFactor, negativeFactor;
};

} // namespace zembra
