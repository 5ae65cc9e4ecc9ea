// The stages as the chain's loop runs them: their formulas with the numbers that steer them.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/MixControls.h"
#include "framework/dsp/VectorFrames.h"
#include "product/dsp/CrushStage.h"
#include "product/dsp/DriveStage.h"
#include "product/dsp/FilterStage.h"
#include "product/dsp/SampleHoldStage.h"

/** The parts that ChainLoop puts together. Each is made from its stage at the start of a chunk, lives
    in registers while the loop runs, and puts the signal state back with finish().

    @tparam Frames  how the loop holds stereo frames: VectorFrames or ScalarFrames
*/
template <typename Frames>
struct ChainParts
{
    using Frame = typename Frames::Frame;
    using Pair = typename Frames::Pair;
    using Control = zembra::Control;

    /** The two channels of the loop, as the stages number them; the same twice for one alone. */
    struct Numbers
    {
        int left, right;
    };

    /** Controls that stay as they are for the whole chunk. */
    struct Steady
    {
        template <typename Sample>
        struct Value
        {
            explicit Value (const Control& control) : value (control.getValue()) {}
            Sample operator[] (int) const { return value; }
            Sample value;
        };

        using PairValue = Value<Pair>;
        using FrameValue = Value<Frame>;
    };

    /** Controls that move: all of them are read from their curves. */
    struct Moving
    {
        struct PairValue
        {
            explicit PairValue (const Control& control) : curve (control.getCurve()) {}
            Pair operator[] (int i) const { return Frames::pair (curve + i); }
            const float* curve;
        };

        struct FrameValue
        {
            explicit FrameValue (const Control& control) : curve (control.getCurve()) {}
            Frame operator[] (int i) const { return Frames::frame (curve + i); }
            const float* curve;
        };
    };

    struct NoDrive
    {
        explicit NoDrive (DriveStage&) {}
        Pair pair (Pair x, int) const { return x; }
        Pair one (Pair x, int) const { return x; }
        void finish (DriveStage&) const {}
    };

    template <typename Reader>
    struct SteeredDrive
    {
        explicit SteeredDrive (DriveStage& stage)
            : input (stage.getControls().input),
              dry (stage.getControls().dry),
              wet (stage.getControls().wet),
              clipper (stage.getClipper())
        {
        }

        Pair pair (Pair x, int i) const
        {
            return DriveStage::process<2> (x, input[i], dry[i], wet[i], clipper);
        }

        Pair one (Pair x, int i) const { return pair (x, i); }
        void finish (DriveStage&) const {}

        typename Reader::PairValue input, dry, wet;
        zembra::SoftClipper clipper;
    };

    /** Its three factors move in the lanes of one register, a step for each frame. */
    struct PulledDrive
    {
        explicit PulledDrive (DriveStage& stage)
            : targets (stage.getTargets()),
              clipper (stage.getClipper())
        {
            alignas (16) const auto start = stage.getFactors();
            factors = Frames::four (&start.input);
        }

        Pair pair (Pair x, int i)
        {
            const auto first = advance (i);
            return process (x, first, advance (i + 1));
        }

        Pair one (Pair x, int i)
        {
            const auto first = advance (i);
            return process (x, first, first);
        }

        Pair advance (int i)
        {
            return zembra::GainRamp::advance (factors, Frames::four (&targets[i].input));
        }

        Pair process (Pair x, Pair first, Pair second) const
        {
            return DriveStage::process<3> (x, Frames::template pickPair<0> (first, second),
                                           Frames::template pickPair<1> (first, second),
                                           Frames::template pickPair<2> (first, second), clipper);
        }

        void finish (DriveStage& stage) const
        {
            stage.setFactors ({ Frames::get (factors, 0), Frames::get (factors, 1),
                                Frames::get (factors, 2), 0.0f });
        }

        const DriveStage::Factors* targets;
        Pair factors;
        zembra::SoftClipper clipper;
    };

    template <typename Reader>
    struct Crush
    {
        explicit Crush (CrushStage& stage) : scale (stage.getScale()) {}
        Pair operator() (Pair x, int i) const { return CrushStage::process (x, scale[i]); }

        typename Reader::PairValue scale;
    };

    /** Takes every sample, and remembers the last. */
    struct NoHold
    {
        NoHold (SampleHoldStage&, Numbers) : last (0.0f) {}
        Frame operator() (Frame x, int) { return last = x; }

        void finish (SampleHoldStage& stage, Numbers channels) const
        {
            stage.setCounter (1.0f);
            stage.getHeld (channels.right) = Frames::getRight (last);
            stage.getHeld (channels.left) = Frames::getLeft (last);
        }

        Frame last;
    };

    template <typename Reader>
    struct Hold
    {
        Hold (SampleHoldStage& stage, Numbers channels)
            : length (stage.getHoldLength()),
              state{ Frame (stage.getCounter()),
                     Frames::frame (stage.getHeld (channels.left), stage.getHeld (channels.right)) }
        {
        }

        Frame operator() (Frame x, int i) { return state.process (x, length[i]); }

        void finish (SampleHoldStage& stage, Numbers channels) const
        {
            stage.setCounter (Frames::getLeft (state.counter));
            stage.getHeld (channels.right) = Frames::getRight (state.held);
            stage.getHeld (channels.left) = Frames::getLeft (state.held);
        }

        typename Reader::FrameValue length;
        SampleHoldStage::State<Frame> state;
    };

    struct NoFilter
    {
        NoFilter (FilterStage*, Numbers) {}
        Frame operator() (Frame x, int) const { return x; }
        void finish (FilterStage*, Numbers) const {}
    };

    template <typename Reader, typename Filter>
    struct Ladder
    {
        using Value = typename Reader::FrameValue;

        Ladder (FilterStage* stage, Numbers channels)
            : tuning{ Value (stage->getTuning().g), Value (stage->getTuning().b),
                      Value (stage->getTuning().feedback), Value (stage->getTuning().estimate) },
              clipper (stage->getClipper())
        {
            const auto& left = stage->getState (channels.left);
            const auto& right = stage->getState (channels.right);
            state = { Frames::frame (left.s1, right.s1), Frames::frame (left.s2, right.s2),
                      Frames::frame (left.s3, right.s3), Frames::frame (left.s4, right.s4) };
        }

        Frame operator() (Frame x, int i)
        {
            const LadderTuning<Frame> now{ tuning.g[i], tuning.b[i], tuning.feedback[i],
                                           tuning.estimate[i] };
            return Filter::process (x, now, state, clipper);
        }

        void finish (FilterStage* stage, Numbers channels) const
        {
            const auto& [s1, s2, s3, s4] = state;
            stage->getState (channels.right) = { Frames::getRight (s1), Frames::getRight (s2),
                                                 Frames::getRight (s3), Frames::getRight (s4) };
            stage->getState (channels.left) = { Frames::getLeft (s1), Frames::getLeft (s2),
                                                Frames::getLeft (s3), Frames::getLeft (s4) };
        }

        LadderTuning<Value> tuning;
        LadderState<Frame> state;
        zembra::SoftClipper clipper;
    };

    struct NoMix
    {
        explicit NoMix (zembra::MixControls*) {}
        Pair operator() (Pair processed, Pair, int) const { return processed; }
    };

    template <typename Reader>
    struct Mix
    {
        explicit Mix (zembra::MixControls* controls) : wet (controls->wet), dry (controls->dry) {}

        Pair operator() (Pair processed, Pair input, int i) const
        {
            return zembra::MixControls::process (processed, input, wet[i], dry[i]);
        }

        typename Reader::PairValue wet, dry;
    };
};
