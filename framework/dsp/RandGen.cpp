// Set-up of the stepped random value.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/dsp/RandGen.h"

namespace zembra
{

RandGen::RandGen (float initialRate, float initialValue)
    : rate (initialRate),
      period (1.0f / initialRate),
      value (initialValue)
{
    generator.setSeedRandomly();
}

void RandGen::prepare (float newSampleRate) noexcept { invSampleRate = 1.0f / newSampleRate; }

void RandGen::setRate (float newRate) noexcept
{
    if (newRate == rate)
        return;

    rate = newRate;

    if (rate != 0.0f)
        period = 1.0f / rate;
}

} // namespace zembra
