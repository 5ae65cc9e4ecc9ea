// Values, thresholds, mappings, texts, listeners and undo of a parameter.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/ParamBool.h"
#include "framework/core/ParamFloat.h"
#include "framework/core/ParamInt.h"

#include <gtest/gtest.h>

#include <limits>
#include <thread>

using namespace zembra;

namespace
{

/** Writes down what it is told. */
struct Recorder final : Param::Listener
{
    void paramChanged (Param*, double plain, double normalised, int source) override
    {
        ++numCalls;
        lastPlain = plain;
        lastNormalised = normalised;
        lastSource = source;
    }

    void paramFrozenChanged (Param*) override { ++numFrozenCalls; }

    int numCalls = 0, numFrozenCalls = 0, lastSource = -1;
    double lastPlain = 0.0, lastNormalised = 0.0;
};

class ParamTest : public testing::Test
{
protected:
    ParamTest() { param.addListener (&recorder); }
    ~ParamTest() override { param.removeListener (&recorder); }

    ParamFloat param{ "drive", "Drive", nullptr, 20.0, 0.0, 100.0, 0.1, "%" };
    Recorder recorder;
    juce::UndoManager undo;
};

TEST_F (ParamTest, TellsANewListenerThePresentValueAndAddsItOnce)
{
    EXPECT_EQ (recorder.numCalls, 1);
    EXPECT_EQ (recorder.lastSource, sourceState);
    EXPECT_DOUBLE_EQ (recorder.lastPlain, 20.0);
    EXPECT_DOUBLE_EQ (recorder.lastNormalised, 0.2);

    param.addListener (&recorder);
    EXPECT_EQ (recorder.numCalls, 2);
    param.setValue (30.0, sourceHost);
    EXPECT_EQ (recorder.numCalls, 3);
}

// Told before the recorder, it has another thread overtake the change that it is told of.
TEST_F (ParamTest, TellsTheValueThatHoldsLastWhoeverSetIt)
{
    struct Overtaking final : Param::Listener
    {
        void paramChanged (Param* changed, double plain, double, int) override
        {
            if (plain == 30.0)
                std::thread ([=] { changed->setValue (40.0, sourceHost); }).join();
        }
    };

    Overtaking overtaking;
    param.addListener (&overtaking);
    param.setValue (30.0, sourceEditor);
    EXPECT_EQ (recorder.lastPlain, 40.0);
    EXPECT_EQ (recorder.lastNormalised, 0.4);
    param.removeListener (&overtaking);
}

TEST_F (ParamTest, StoresOnlyWhatDiffersByMoreThanAQuarterStep)
{
    struct Row
    {
        double asked, expected;
        bool isTold;
    };

    const auto nan = std::numeric_limits<double>::quiet_NaN();
    const auto inf = std::numeric_limits<double>::infinity();
    const Row rows[] = { { 20.0, 20.0, false },  { 20.02, 20.0, false }, { 20.03, 20.03, true },
                         { 400.0, 100.0, true }, { inf, 100.0, false },  { nan, 100.0, false },
                         { -inf, 0.0, true },    { nan, 0.0, false },    { -1.0, 0.0, false } };

    for (const auto& row : rows)
    {
        const auto before = recorder.numCalls;
        param.setValue (row.asked, sourceHost);
        EXPECT_DOUBLE_EQ (param.getValue(), row.expected) << row.asked;
        EXPECT_EQ (recorder.numCalls - before, row.isTold ? 1 : 0) << row.asked;
    }
}

TEST_F (ParamTest, ReactsToEveryChangeWithoutAStep)
{
    ParamFloat fine ("fine", "Fine", nullptr, 0.0, 0.0, 1.0, 0.0, "");
    fine.setValue (1e-12, sourceHost);
    EXPECT_EQ (fine.getValue(), 1e-12);
}

TEST_F (ParamTest, ClampsIntoARangeThatRunsBackwards)
{
    ParamFloat backwards ("b", "B", nullptr, 0.0, 10.0, -10.0, 0.1, "");
    backwards.setValue (99.0, sourceHost);
    EXPECT_DOUBLE_EQ (backwards.getValue(), 10.0);
    backwards.setValue (-99.0, sourceHost);
    EXPECT_DOUBLE_EQ (backwards.getValue(), -10.0);
}

TEST_F (ParamTest, RecordsEditsAloneAndOnlyWithAnUndoManager)
{
    struct Row
    {
        int source;
        bool withManager, isUndoable;
    };

    const Row rows[] = { { sourceHost, true, false },    { sourceEditor, true, true },
                         { sourceEditor, false, false }, { sourceMidi, true, false },
                         { sourceUndo, true, false },    { sourceState, true, false },
                         { sourceLinked, true, true },   { sourceLinked, false, false } };

    for (const auto& row : rows)
    {
        param.setValue (20.0, sourceHost);
        undo.clearUndoHistory();
        param.setValue (50.0, row.source, row.withManager ? &undo : nullptr);
        EXPECT_DOUBLE_EQ (param.getValue(), 50.0);
        EXPECT_EQ (recorder.lastSource, row.source);
        EXPECT_EQ (undo.canUndo(), row.isUndoable) << row.source;
    }
}

TEST_F (ParamTest, UndoesADragAsOneStepAndTwoParametersAsTwo)
{
    ParamFloat other ("other", "Other", nullptr, 1.0, 0.0, 10.0, 0.1, "");
    undo.beginNewTransaction();

    for (const auto value : { 30.0, 40.0, 999.0 })
        param.setValue (value, sourceEditor, &undo);

    EXPECT_EQ (undo.getNumActionsInCurrentTransaction(), 1);
    other.setValue (5.0, sourceEditor, &undo);
    EXPECT_EQ (undo.getNumActionsInCurrentTransaction(), 2);

    EXPECT_TRUE (undo.undo());
    EXPECT_DOUBLE_EQ (param.getValue(), 20.0);
    EXPECT_DOUBLE_EQ (other.getValue(), 1.0);
    EXPECT_EQ (recorder.lastSource, sourceUndo);
    EXPECT_TRUE (undo.redo());
    EXPECT_DOUBLE_EQ (param.getValue(), 100.0);
}

TEST_F (ParamTest, IgnoresEverythingWhileLocked)
{
    undo.beginNewTransaction();
    param.setValue (60.0, sourceEditor, &undo);
    param.setLocked (true);

    for (int source = sourceHost; source <= sourceLinked; ++source)
        param.setValue (80.0, source);

    undo.undo();
    EXPECT_DOUBLE_EQ (param.getValue(), 60.0);
}

TEST_F (ParamTest, FollowsMidiAlongItsTravel)
{
    ParamFloat frequency ("f", "F", nullptr, 8000.0, 20.0, 20000.0, 1.0, "Hz");
    frequency.setSkewForCentre (1000.0);
    EXPECT_NEAR (frequency.normalise (1000.0), 0.5, 1e-12);

    frequency.setFromMidi (127, sourceMidi);
    EXPECT_DOUBLE_EQ (frequency.getValue(), 20000.0);
    frequency.setFromMidi (0, sourceMidi);
    EXPECT_DOUBLE_EQ (frequency.getValue(), 20.0);
    frequency.setFromMidi (64, sourceMidi);
    // 64 / 127 of the travel: 20 + 19980 * (64/127)^(1/skew), skew = log 0.5 / log (980 / 19980).
    EXPECT_NEAR (frequency.getValue(), 1034.0, 0.1);

    frequency.setFromMidi (10, sourceEditor);
    EXPECT_NEAR (frequency.getValue(), 1034.0, 0.1) << "only a meta parameter accepts the editor's";
    frequency.setMeta (true);
    frequency.setFromMidi (0, sourceEditor);
    EXPECT_DOUBLE_EQ (frequency.getValue(), 20.0);
}

TEST_F (ParamTest, RoundsChoicesAndKeepsSwitchesAsTheyAre)
{
    const ParamInt choice ("c", "C", nullptr, 0.0, 0.0, 3.0, 0.25, "");
    EXPECT_DOUBLE_EQ (choice.getStep(), 1.0);
    EXPECT_EQ (choice.getNumSteps(), 4);
    EXPECT_DOUBLE_EQ (choice.denormalise (0.5), 2.0) << "1.5 goes to the even number";
    EXPECT_DOUBLE_EQ (choice.denormalise (0.49), 1.0);
    EXPECT_DOUBLE_EQ (choice.normalise (3.0), 1.0);

    ParamBool flag ("s", "S", nullptr, 0.0, "");
    flag.valueTexts.set (0, "active");
    flag.setValue (0.4, sourceHost);
    EXPECT_DOUBLE_EQ (flag.getValue(), 0.4);
    EXPECT_EQ (flag.getText (0.4f, 2), "active") << "a name is given whole";
    EXPECT_EQ (flag.getText (0.7f, 10), "1");
    EXPECT_EQ (flag.getNumSteps(), 2);
}

TEST_F (ParamTest, ReadsBackTheTextsItWrites)
{
    ParamFloat gain ("g", "G", nullptr, -3.0, -48.0, 18.0, 0.1, "dB");
    gain.valueTexts.set (-48, "-inf");
    EXPECT_EQ (gain.getText (-48.0f, 20), "-inf");
    EXPECT_EQ (gain.getText (-3.25f, 20), "-3.25");
    EXPECT_EQ (gain.getText (-13.25f, 3), "-13");

    EXPECT_EQ (gain.getValueForText ("-INF"), -48.0);
    EXPECT_EQ (gain.getValueForText (" -3.25 dB"), -3.25);
    EXPECT_EQ (gain.getValueForText ("1e1"), 10.0);
    EXPECT_FALSE (gain.getValueForText ("loud").has_value());
    EXPECT_FALSE (gain.getValueForText ("").has_value());
    EXPECT_FALSE (gain.getValueForText ("1e999").has_value());
}

TEST_F (ParamTest, TellsFrozenMarksOnlyWhenTheyChange)
{
    param.changeFrozen (true);
    param.changeFrozen (true);
    EXPECT_EQ (recorder.numFrozenCalls, 1);
    param.setFreezable (false);
    param.changeFrozen (false);
    EXPECT_TRUE (param.isFrozen());
    EXPECT_EQ (recorder.numFrozenCalls, 1);
}

} // namespace
