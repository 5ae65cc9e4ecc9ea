// The drive: a soft clipper behind a gain, blended with the clean signal.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/Chunk.h"
#include "framework/dsp/GainRamp.h"
#include "framework/dsp/SoftClipper.h"

/** y = (1 - d) x + d clip(...clip(16^d x)), each factor gliding; transparent at d = 0.

    A steady amount clips twice, a modulated one three times: the two sound different on purpose.
    [audio thread]
*/
class DriveStage final
{
public:
    /** What there is to do in a chunk. */
    enum class Mode
    {
        nothing, ///< transparent
        steered, ///< two clips, the factors are the controls
        pulled   ///< three clips, the factors follow the targets step by step
    };

    /** The factors of the formula while they are steered. */
    struct Controls
    {
        zembra::Control input; ///< 16^d
        zembra::Control dry;   ///< 1 - d
        zembra::Control wet;   ///< d

        template <typename Function>
        void forEach (Function&& function)
        {
            for (auto* control : { &input, &dry, &wet })
                function (*control);
        }
    };

    /** The factors of one sample. */
    struct Factors
    {
        float input, dry, wet, unused;
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

    /** Steers a chunk of at most 256 samples by an amount that the LFO lowers, sample by sample. */
    void steer (const zembra::Chunk& chunk, float amount, float depth, const float* lfo) noexcept;

    Mode getMode() const noexcept { return mode; }
    Controls& getControls() noexcept { return controls; }

    /** Where the factors of a pulled chunk tend to, one for each sample and one to spare. */
    const Factors* getTargets() const noexcept { return targets.data(); }

    /** Where the factors of a pulled chunk begin, and where they have come to. */
    Factors getFactors() const noexcept;
    void setFactors (const Factors& reached) noexcept;

    /** Leaves the rest of the channels as they are, if the chunk is a pulled one. */
    void endPull() noexcept { mode = mode == Mode::pulled ? Mode::nothing : mode; }

    const zembra::SoftClipper& getClipper() const noexcept { return clipper; }

private:
    void setAmount (float newAmount) noexcept;

    zembra::SoftClipper clipper;
    zembra::GainRamp inputGain, dryGain, wetGain;
    Mode mode = Mode::nothing;
    Controls controls;
    alignas (16) std::array<Factors, zembra::Control::maxFrames + 1> targets{};
    float amount = 0.0f;
    float dryLevel = 1.0f;
    float preGain = 1.0f;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (DriveStage)
};
