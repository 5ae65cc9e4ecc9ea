// Widgets moved by mouse, keys, host and undo, seen by a host that counts.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/Fader.h"
#include "framework/gui/widgets/TabWidget.h"
#include "framework/gui/widgets/Toggle.h"
#include "tests/support/EditListener.h"
#include "tests/support/TestProcessor.h"
#include "tests/support/TestWindow.h"

#include <gtest/gtest.h>

namespace
{

using juce::KeyPress;

/** Counts the undo steps by taking them all. */
int countUndoSteps (juce::UndoManager& undo)
{
    int steps = 0;

    while (undo.undo())
        ++steps;

    return steps;
}

/** A widget in a window, with a host that counts. */
template <typename Widget>
struct Bench
{
    template <typename... Args>
    explicit Bench (const juce::String& id, Args&&... args)
        : param (vorlo.param (id)),
          widget (vorlo.processor, id, std::forward<Args> (args)...)
    {
        widget.setSize (100, 100);
        window.emplace (widget);
        widget.pollParam();
    }

    void expectOneEdit() const
    {
        EXPECT_EQ (host.numBegun, 1);
        EXPECT_EQ (host.numEnded, 1);
        EXPECT_EQ (host.changesOutsideGestures, 0);
    }

    TestProcessor vorlo;
    zembra::Param& param;
    EditListener host{ vorlo.processor };
    juce::UndoManager& undo{ vorlo.processor.getUndoManager() };
    Widget widget;
    std::optional<TestWindow> window;
};

struct KnobBench : Bench<zembra::Fader>
{
    explicit KnobBench (const juce::String& id,
                        juce::Slider::TextEntryBoxPosition box = juce::Slider::NoTextBox)
        : Bench (id, juce::Slider::RotaryHorizontalVerticalDrag)
    {
        widget.setupControl (box);
    }

    juce::Slider& slider() { return widget.getSlider(); }
};

/** A button for every value, with text, in place of the numbered ones. */
std::unique_ptr<juce::Button> makeTab (const juce::String& text)
{
    return std::make_unique<juce::TextButton> (text);
}

} // namespace

TEST (Fader, ADragIsOneGestureAndOneUndoStep)
{
    KnobBench b (paramId::drive);
    b.window->drag (b.slider(), { 0, -50 });

    // 250 pixels are the whole range.
    EXPECT_NEAR (b.param.getValue(), 20.0, 0.051);
    EXPECT_EQ (b.host.numChanges, 10);
    b.expectOneEdit();
    EXPECT_EQ (countUndoSteps (b.undo), 1);
    EXPECT_EQ (b.param.getValue(), 0.0);
}

TEST (Fader, CtrlMakesADragFine)
{
    KnobBench plain (paramId::drive), fine (paramId::drive);
    plain.window->drag (plain.slider(), { 0, -60 }, 30);
    fine.window->drag (fine.slider(), { 0, -60 }, 30,
                       juce::ModifierKeys::leftButtonModifier | juce::ModifierKeys::ctrlModifier);
    EXPECT_GT (fine.param.getValue(), 0.0);
    EXPECT_LT (fine.param.getValue(), 0.5 * plain.param.getValue());
    fine.expectOneEdit();
}

TEST (Fader, ADoubleClickReturnsToThePresentDefault)
{
    KnobBench b (paramId::lowpassFreq);
    b.vorlo.set (paramId::lowpassFreq, 300.0);
    b.param.setDefaultValue (1234.0); // as a default preset does, after the widget was made
    b.widget.pollParam();
    b.window->doubleClick (b.slider());
    EXPECT_EQ (b.param.getValue(), 1234.0);
    EXPECT_EQ (b.host.numBegun, b.host.numEnded);
    EXPECT_EQ (b.host.changesOutsideGestures, 0);
    EXPECT_EQ (countUndoSteps (b.undo), 1);
    EXPECT_EQ (b.param.getValue(), 300.0);
}

TEST (Fader, AWheelNotchIsAnEditOfItsOwn)
{
    KnobBench b (paramId::drive);
    b.window->turnWheel (b.slider(), 1.0f);
    const auto once = b.param.getValue();
    EXPECT_GT (once, 0.0);
    b.expectOneEdit();
    b.window->turnWheel (b.slider(), 1.0f);
    EXPECT_GT (b.param.getValue(), once);
    EXPECT_EQ (countUndoSteps (b.undo), 2);
}

TEST (Fader, KeysMoveAFocusedKnobByItsStep)
{
    KnobBench b (paramId::drive);
    b.slider().grabKeyboardFocus();
    const std::pair<KeyPress, double> steps[]{
        { KeyPress (KeyPress::upKey), 0.1 },       { KeyPress (KeyPress::rightKey), 0.2 },
        { KeyPress (KeyPress::pageUpKey), 1.2 },   { KeyPress (KeyPress::leftKey), 1.1 },
        { KeyPress (KeyPress::pageDownKey), 0.1 }, { KeyPress (KeyPress::downKey), 0.0 }
    };

    for (const auto& [key, expected] : steps)
    {
        EXPECT_TRUE (b.window->type (key));
        EXPECT_NEAR (b.param.getValue(), expected, 1e-6) << key.getTextDescription();
    }

    EXPECT_EQ (b.host.numBegun, 6);
    EXPECT_EQ (b.host.numEnded, 6);
    EXPECT_EQ (b.host.changesOutsideGestures, 0);
    EXPECT_FALSE (b.window->type (KeyPress (KeyPress::spaceKey))) << "the host's own";
}

TEST (Fader, ReturnOpensTheTextBox)
{
    KnobBench b (paramId::drive, juce::Slider::TextBoxRight);
    b.slider().grabKeyboardFocus();
    EXPECT_TRUE (b.window->type (KeyPress (KeyPress::returnKey)));
    auto* const editor =
        dynamic_cast<juce::TextEditor*> (juce::Component::getCurrentlyFocusedComponent());
    ASSERT_NE (editor, nullptr);
    editor->setText ("12");
    b.window->type (KeyPress (KeyPress::returnKey));
    TestWindow::runMessages (20);
    EXPECT_NEAR (b.param.getValue(), 12.0, 1e-6);
    b.expectOneEdit();
}

TEST (Fader, TypedTextsBecomeValues)
{
    struct Case
    {
        const char *id, *text;
        double expected;
    };

    const Case cases[]{
        { paramId::drive, "55", 55.0 },          { paramId::drive, "55.5 %", 55.5 },
        { paramId::drive, "55,5", 55.5 },        { paramId::drive, "900", 100.0 },
        { paramId::dry, "-inf", -48.0 },         { paramId::dry, "-6", -6.0 },
        { paramId::lowpassFreq, "440 Hz", 440 }, { paramId::drive, "rubbish", 10.0 },
        { paramId::lfoSyncedPeriod, "1/4", 19 }
    };

    for (const auto& [id, text, expected] : cases)
    {
        KnobBench b (id, juce::Slider::TextBoxRight);

        if (b.param.getId() == paramId::drive)
            b.vorlo.set (id, 10.0);

        b.widget.pollParam();
        auto* const box = dynamic_cast<juce::Label*> (b.slider().getChildComponent (0));
        ASSERT_NE (box, nullptr);
        box->showEditor();
        ASSERT_NE (box->getCurrentTextEditor(), nullptr);
        box->getCurrentTextEditor()->setText (text);
        box->hideEditor (false);
        EXPECT_NEAR (b.param.getValue(), expected, 1e-4) << id << " " << text;
        EXPECT_EQ (b.host.numBegun, b.host.numEnded);
        EXPECT_EQ (b.host.changesOutsideGestures, 0);
    }
}

TEST (Fader, ShowsValuesAsTheParameterNamesThem)
{
    const std::tuple<const char*, double, const char*> cases[]{
        { paramId::lowpassFreq, 8000.0, "8000 Hz" },
        { paramId::drive, 12.34, "12.3 %" },
        { paramId::lowpassRes, 0.5, "0.50 " },
        { paramId::dry, -48.0, "-inf" },
        { paramId::dry, 1.04, "1.0 dB" },
        { paramId::lfoWaveform, 3.0, "rand" }
    };

    for (const auto& [id, value, text] : cases)
    {
        KnobBench b (id);
        EXPECT_EQ (b.slider().getTextFromValue (value), text);
    }
}

TEST (Fader, FollowsEverySourceAtThePollAndTellsNobody)
{
    for (const auto source : { zembra::sourceHost, zembra::sourceMidi, zembra::sourceUndo,
                               zembra::sourceState, zembra::sourceLinked })
    {
        KnobBench b (paramId::drive);
        std::thread ([&] { b.param.setValue (42.0, source); }).join();
        EXPECT_EQ (b.slider().getValue(), 0.0);
        b.widget.pollParam();
        EXPECT_NEAR (b.slider().getValue(), 42.0, 1e-5);
        EXPECT_EQ (b.host.numBegun, 0);
        EXPECT_FALSE (b.undo.canUndo());
    }
}

TEST (Fader, AnEditIsNotFoughtByThePoll)
{
    KnobBench b (paramId::drive);
    b.window->press (b.slider(), { 50, 50 });
    b.window->dragBy ({ 0, -25 });
    b.param.setValue (90.0, zembra::sourceEditor);
    const auto held = b.slider().getValue();
    b.widget.pollParam();
    EXPECT_EQ (b.slider().getValue(), held);
}

TEST (Fader, SkewAndZeroSnap)
{
    KnobBench freq (paramId::lowpassFreq);
    EXPECT_NEAR (freq.slider().valueToProportionOfLength (1000.0), 0.5, 1e-6);

    // Steps of a float's precision: a value a hair off zero becomes zero.
    KnobBench dry (paramId::dry);
    dry.slider().setRange (-48.0, 18.0, 0.0);
    dry.slider().setRange (-48.0 + 1e-3, 18.0, 0.1);
    dry.slider().setValue (0.001, juce::sendNotificationSync);
    EXPECT_EQ (dry.param.getValue(), 0.0);
}

TEST (Fader, EndsItsGestureWhenItDiesInADrag)
{
    TestProcessor vorlo;
    EditListener host (vorlo.processor);
    auto knob = std::make_unique<zembra::Fader> (vorlo.processor, paramId::drive,
                                                 juce::Slider::RotaryHorizontalVerticalDrag);
    knob->setSize (100, 100);
    TestWindow window (*knob);
    window.press (knob->getSlider(), { 50, 50 });
    window.dragBy ({ 0, -30 });
    EXPECT_EQ (host.numBegun - host.numEnded, 1);
    knob.reset();
    EXPECT_EQ (host.numBegun, host.numEnded);
    window.dragBy ({ 0, -30 });
    EXPECT_NEAR (vorlo.get (paramId::drive), 12.0, 1e-6);
}

TEST (Toggle, ReadsAndWritesTheSwitchEitherWayRound)
{
    struct Case
    {
        bool inverted;
        double value;
        bool isLit;
        double afterClick;
    };

    const Case cases[]{ { false, 0.0, false, 1.0 }, { false, 0.5, true, 0.0 },
                        { false, 1.0, true, 0.0 },  { true, 0.0, true, 1.0 },
                        { true, 0.5, true, 1.0 },   { true, 1.0, false, 0.0 } };

    for (const auto& [inverted, value, isLit, afterClick] : cases)
    {
        Bench<zembra::Toggle> b (paramId::bypassFilter, std::make_unique<juce::ToggleButton>());
        EXPECT_TRUE (b.widget.isInverted());
        b.widget.setInverted (inverted);
        b.vorlo.set (paramId::bypassFilter, value);
        b.widget.pollParam();
        EXPECT_EQ (b.widget.getButton().getToggleState(), isLit) << inverted << value;
        b.window->click (b.widget.getButton());
        EXPECT_EQ (b.param.getValue(), afterClick);
        b.expectOneEdit();
        EXPECT_EQ (countUndoSteps (b.undo), 1);
        EXPECT_EQ (b.param.getValue(), value);
    }
}

TEST (Toggle, MomentarySendsBothWaysInOneGesture)
{
    Bench<zembra::Toggle> b (paramId::dryWetLink, juce::Path());
    b.widget.setClickToggles (false);
    b.window->click (b.widget.getButton());
    EXPECT_EQ (b.host.numChanges, 2);
    EXPECT_EQ (b.param.getValue(), 0.0);
    b.expectOneEdit();
}

TEST (Toggle, EachClickBringsItsTextAndAnUndoStep)
{
    Bench<zembra::Toggle> b (paramId::bypassFilter, std::make_unique<juce::ToggleButton>());
    b.widget.setTooltip ("first");
    b.widget.setStateTooltips ("turn on", "bypass");
    b.vorlo.set (paramId::bypassFilter, 1.0);
    b.widget.pollParam();
    EXPECT_EQ (b.widget.getButton().getTooltip(), "first");
    b.window->click (b.widget.getButton());
    EXPECT_EQ (b.widget.getButton().getTooltip(), "bypass");
    b.window->click (b.widget.getButton());
    EXPECT_EQ (b.widget.getTooltip(), "turn on");
    EXPECT_EQ (countUndoSteps (b.undo), 2);
}

TEST (TabWidget, ChoosesAndFollows)
{
    Bench<zembra::TabWidget> b (paramId::lfoWaveform);
    ASSERT_EQ (b.widget.getNumButtons(), 4);

    for (int i = 0; i < 4; ++i)
        b.widget.setButton (i, makeTab (juce::String (i)));

    b.widget.setTooltips ({ "sine", "square", "tri", "rand" });
    EXPECT_TRUE (b.widget.getButton (0)->getToggleState()) << "taken over from the old button";

    b.window->click (*b.widget.getButton (2));
    EXPECT_EQ (b.param.getValue(), 2.0);
    EXPECT_EQ (b.widget.getTooltip(), "tri");
    EXPECT_FALSE (b.widget.getButton (0)->getToggleState());
    b.expectOneEdit();

    b.vorlo.set (paramId::lfoWaveform, 1.0);
    b.widget.pollParam();
    EXPECT_TRUE (b.widget.getButton (1)->getToggleState());
    EXPECT_FALSE (b.widget.getButton (2)->getToggleState());
    EXPECT_EQ (b.host.numBegun, 1);
}

TEST (TabWidget, CellsFillTheGridInWholePixels)
{
    Bench<zembra::TabWidget> b (paramId::lfoWaveform);
    b.widget.setSize (101, 63);
    b.widget.setNumRows (2);
    const juce::Rectangle<int> expected[]{
        { 0, 0, 50, 31 }, { 50, 0, 50, 31 }, { 0, 31, 50, 31 }, { 50, 31, 50, 31 }
    };

    for (int i = 0; i < 4; ++i)
        EXPECT_EQ (b.widget.getButton (i)->getBounds(), expected[i]) << i;
}

TEST (PluginWidget, HostThreadsAndThePollMeetSafely)
{
    KnobBench b (paramId::drive);
    b.widget.setShowsValueBubble (true);
    std::atomic<bool> done{ false };
    std::thread host (
        [&]
        {
            for (int i = 0; i < 20000; ++i)
            {
                b.param.setValue (i % 100, zembra::sourceHost);
                b.param.changeFrozen (i % 2 == 0);
            }

            done = true;
        });

    while (! done)
        b.widget.pollParam();

    host.join();
    b.widget.pollParam();
    EXPECT_NEAR (b.slider().getValue(), 99.0, 1e-5);
    EXPECT_EQ (b.widget.getTooltip(), "99.0 %");
}
