// The drive: a soft clipper behind a gain, blended with the clean signal.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/GainRamp.h"
#include "framework/dsp/SoftClipper.h"
#include "framework/dsp/Chunk.h"

/** y = (1 - d) x + d clip(...clip(16^d x)), each factor gliding; transparent at d = 0.

    A steady amount clips twice, a modulated one three times: the two sound different on purpose.
    [audio thread]
*/
class DriveStage final
{
public:
    /** The factors of the formula. */
    struct Controls
    {
        zembra::Control input; ///< 16^d
        zembra::Control dry;   ///< 1 - d
        zembra::Control wet;   ///< d
        int numClips = 0;      ///< 2 or 3; 0 while nothing needs to be done
    };

    explicit DriveStage (float asymmetry);

    /** The stage's formula. */
    template <int numClips, typename Sample>
    static Sample process (Sample x, Sample input, Sample dry, Sample wet,
                           const zembra::SoftClipper& clipper) noexcept
    {
        static_assert (numClips == 2 || numClips == 3);
        auto driven = clipper.clip (clipper.clip (x * input));

        if constexpr (numClips == 3)
            driven = clipper.clip (driven);

        return x * dry + driven * wet;
    }

    /** Steers a chunk by one amount, 0 to 1. */
    void steer (const zembra::Chunk& chunk, float amount) noexcept;

    /** Steers a chunk by an amount that the LFO lowers, sample by sample. */
    void steer (const zembra::Chunk& chunk, float amount, float depth, const float* lfo) noexcept;

    Controls& getControls() noexcept { return controls; }
    const zembra::SoftClipper& getClipper() const noexcept { return clipper; }

private:
    void setAmount (float newAmount) noexcept;

    zembra::SoftClipper clipper;
    zembra::GainRamp inputGain, dryGain, wetGain;
    Controls controls;
    float amount = 0.0f;
    float dryLevel = 1.0f;
    float preGain = 1.0f;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (DriveStage)
};
