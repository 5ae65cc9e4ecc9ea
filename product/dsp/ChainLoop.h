// The inner loop of the engine: all stages, frame by frame.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "product/dsp/ChainParts.h"

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define VORLO_IS_SANITIZED 1
#elif defined(__has_feature)
#define VORLO_IS_SANITIZED __has_feature (address_sanitizer)
#endif

// Flattened, all its forms take a compiler ten minutes if it has to instrument them as well.
#if defined(__GNUC__) && ! VORLO_IS_SANITIZED
#define VORLO_FLATTEN [[gnu::flatten]]
#else
#define VORLO_FLATTEN
#endif

/** Runs the stages over a pair of channels in one go.

    A ladder's feedback is a chain of operations, some ninety clock cycles long, that must be waited
    for at every sample. A pass of its own for each other stage would come on top; in one loop their
    work is done while the ladder waits. Both channels lie in the lanes of one register, and the
    stages without feedback take two frames at a time.

    The loop is compiled for each sort of chunk: with steady controls or with a curve for each, for
    each mode of the drive, for each filter or none. The formulas are the stages' own.

    @tparam Frames  VectorFrames, or ScalarFrames for the same result to the last bit
*/
template <typename Frames>
class ChainLoop final
{
public:
    using Parts = ChainParts<Frames>;

    /** Where the samples of the two channels are; for one channel alone, the same twice. */
    struct Channels
    {
        typename Parts::Numbers numbers;
        float *left, *right;             ///< the input, and in its place the output
        const float *dryLeft, *dryRight; ///< what is mixed in
    };

    /** The stages, steered for the chunk; a filter or a mix that is missing is left out. */
    struct Stages
    {
        DriveStage& drive;
        CrushStage& crush;
        SampleHoldStage& hold;
        FilterStage* filter;
        zembra::MixControls* mix;
    };

    ChainLoop (const Stages& stagesToRun, const Channels& channelsToRun, int numSamplesToRun)
        : stages (stagesToRun),
          channels (channelsToRun),
          numSamples (numSamplesToRun)
    {
    }

    /** Processes the chunk. Returns the largest magnitude of the output, leaving NaNs out. */
    float run()
    {
        auto isMoving = false;
        forEachControl ([&] (auto& control) { isMoving = isMoving || control.isMoving(); });

        if (isMoving)
        {
            forEachControl ([this] (auto& control) { control.spread (numSamples); });
            return withDrive<Moving, typename Parts::template Hold<Moving>>();
        }

        return stages.hold.isTransparent()
                   ? withDrive<Steady, typename Parts::NoHold>()
                   : withDrive<Steady, typename Parts::template Hold<Steady>>();
    }

private:
    using Pair = typename Parts::Pair;
    using Steady = typename Parts::Steady;
    using Moving = typename Parts::Moving;

    template <typename Function>
    void forEachControl (Function&& function)
    {
        for (auto* control : { &stages.crush.getScale(), &stages.hold.getHoldLength() })
            function (*control);

        if (stages.drive.getMode() == DriveStage::Mode::steered)
            stages.drive.getControls().forEach (function);

        if (stages.filter != nullptr)
            stages.filter->getTuning().forEach (function);
    }

    // What is to be compiled for is chosen one by one, and the loop then run with all of it.

    template <typename Reader, typename Hold>
    float withDrive()
    {
        switch (stages.drive.getMode())
        {
        case DriveStage::Mode::nothing:
            return withFilter<Reader, Hold, typename Parts::NoDrive>();
        case DriveStage::Mode::steered:
            return withFilter<Reader, Hold, typename Parts::template SteeredDrive<Reader>>();
        default:
            return withFilter<Reader, Hold, typename Parts::PulledDrive>();
        }
    }

    template <typename Reader, typename Hold, typename Drive>
    float withFilter()
    {
        using LowPass = typename Parts::template Ladder<Reader, VorloLowPassFilter>;
        using HiPass = typename Parts::template Ladder<Reader, VorloHiPassFilter>;

        if (stages.mix == nullptr)
            return loop<Reader, Hold, Drive, typename Parts::NoFilter, typename Parts::NoMix>();
        if (stages.filter == nullptr)
            return withMix<Reader, Hold, Drive, typename Parts::NoFilter>();
        if (stages.filter->getType() == FilterStage::lowPass)
            return withMix<Reader, Hold, Drive, LowPass>();

        return withMix<Reader, Hold, Drive, HiPass>();
    }

    template <typename Reader, typename Hold, typename Drive, typename Filter>
    float withMix()
    {
        if (! stages.mix->isMoving())
            return loop<Reader, Hold, Drive, Filter, typename Parts::template Mix<Steady>>();

        stages.mix->spread (numSamples);
        return loop<Reader, Hold, Drive, Filter, typename Parts::template Mix<Moving>>();
    }

    // All parts are inlined: a call would send what they keep in registers through memory.
    template <typename Reader, typename Hold, typename Drive, typename Filter, typename Mix>
    VORLO_FLATTEN float loop()
    {
        Drive drive (stages.drive);
        const typename Parts::template Crush<Reader> crush (stages.crush);
        Hold hold (stages.hold, channels.numbers);
        Filter filter (stages.filter, channels.numbers);
        const Mix mix (stages.mix);
        const auto [numbers, left, right, dryLeft, dryRight] = channels;
        const auto length = numSamples;
        Pair peak (0.0f);
        int i = 0;

        for (; i < length - 1; i += 2)
        {
            const auto x = crush (drive.pair (Frames::load (left + i, right + i), i), i);
            const auto a = filter (hold (Frames::first (x), i), i);
            const auto b = filter (hold (Frames::second (x), i + 1), i + 1);
            const auto y = mix (Frames::join (a, b), Frames::load (dryLeft + i, dryRight + i), i);
            peak = larger (magnitude (y), peak);
            Frames::store (y, left + i, right + i);
        }

        if (i < length)
        {
            const auto x = crush (drive.one (Frames::loadOne (left + i, right + i), i), i);
            const auto a = filter (hold (Frames::first (x), i), i);
            const auto y =
                mix (Frames::join (a, a), Frames::loadOne (dryLeft + i, dryRight + i), i);
            peak = larger (magnitude (y), peak);
            Frames::storeOne (y, left + i, right + i);
        }

        drive.finish (stages.drive);
        hold.finish (stages.hold, numbers);
        filter.finish (stages.filter, numbers);
        return Frames::getLargest (peak);
    }

    const Stages stages;
    const Channels channels;
    const int numSamples;
};
