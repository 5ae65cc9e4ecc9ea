// What the panels show and what they do, by real mouse and keyboard events.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/product/gui/EditorParts.h"

#include "product/dsp/LfoDivisions.h"
#include "product/gui/PeriodButtons.h"
#include "tests/support/EditListener.h"

#include <gtest/gtest.h>

namespace
{

/** The editor in a window, ready for the mouse. */
struct Desk : OpenEditor
{
    Desk() { TestWindow::runMessages (afterTimers); }

    void set (const char* id, double value)
    {
        processor.set (id, value);
        TestWindow::runMessages (afterTimers);
    }

    double get (const char* id) { return processor.get (id); }

    juce::Label& valueText (const char* id)
    {
        for (auto* child : slider (id).getChildren())
            if (auto* label = dynamic_cast<juce::Label*> (child))
                return *label;

        throw std::runtime_error ("no value text");
    }

    juce::UndoManager& undo() { return processor.processor.getUndoManager(); }

    zembra::ButtonsDropDownList& periodList()
    {
        for (auto* child : panelOf ("lfoFreeRate").getChildren())
            if (auto* list = dynamic_cast<zembra::ButtonsDropDownList*> (child))
                return *list;

        throw std::runtime_error ("no period list");
    }

    TestWindow window{ *editor };
};

} // namespace

TEST (Panels, ShowEveryParameter)
{
    OpenEditor open;
    EXPECT_EQ (open.editor->getWidgets().size(), 23);

    for (auto* param : open.processor.processor.getParamSet())
        EXPECT_NO_THROW (open.widget (param->getId())) << param->getId();
}

TEST (Panels, FollowTheFilterTypeWithoutTouchingValues)
{
    Desk desk;
    const auto expectLowpass = [&desk] (bool isLowpass)
    {
        for (const auto* id : { "lowpassFreq", "lowpassRes" })
            EXPECT_EQ (desk.widget (id).isVisible(), isLowpass);

        for (const auto* id : { "hipassFreq", "hipassRes" })
            EXPECT_EQ (desk.widget (id).isVisible(), ! isLowpass);
    };

    expectLowpass (true);
    desk.set ("hipassFreq", 333.0);
    desk.set ("filterType", 1.0);
    expectLowpass (false);
    EXPECT_EQ (desk.get ("lowpassFreq"), 8000.0);
    EXPECT_EQ (desk.get ("hipassFreq"), 333.0);
    EXPECT_EQ (desk.slider ("hipassFreq").getValue(), 333.0);
    desk.window.click (desk.tab ("filterType", 0));
    TestWindow::runMessages (afterTimers);
    expectLowpass (true);
}

TEST (Panels, GreyOutABypassedFilterButNotItsSwitch)
{
    Desk desk;
    desk.window.click (desk.button ("bypassFilter"));
    TestWindow::runMessages (afterTimers);
    EXPECT_EQ (desk.get ("bypassFilter"), 1.0);
    EXPECT_EQ (desk.button ("bypassFilter").getTooltip(), "Turn on the filter");
    EXPECT_TRUE (desk.button ("bypassFilter").isEnabled());

    for (const auto* id : { "filterType", "lowpassFreq", "lowpassRes", "hipassFreq", "hipassRes" })
        EXPECT_FALSE (desk.widget (id).isEnabled()) << id;

    for (const auto* text : { "freq", "res" })
        EXPECT_FALSE (OpenEditor::label (desk.panelOf ("lowpassFreq"), text).isEnabled());

    desk.set ("bypassFilter", 0.0);
    EXPECT_TRUE (desk.widget ("hipassRes").isEnabled());
    EXPECT_TRUE (desk.button ("bypassFilter").getToggleState());
}

TEST (Panels, DisableBypassedFadersAndALinkWithoutFaders)
{
    Desk desk;
    EXPECT_TRUE (desk.button ("bypassDrySignal").getToggleState());
    desk.window.click (desk.button ("bypassDrySignal"));
    TestWindow::runMessages (afterTimers);
    EXPECT_FALSE (desk.widget ("dry").isEnabled());
    EXPECT_TRUE (desk.widget ("wet").isEnabled());
    EXPECT_TRUE (desk.widget ("dryWetLink").isEnabled());
    desk.set ("bypassWetSignal", 1.0);
    EXPECT_FALSE (desk.widget ("wet").isEnabled());
    EXPECT_FALSE (desk.widget ("dryWetLink").isEnabled());
    desk.set ("bypassDrySignal", 0.0);
    EXPECT_TRUE (desk.widget ("dryWetLink").isEnabled());
}

TEST (Panels, ShowEachDepthOnTheKnobThatItMoves)
{
    Desk desk;
    const std::pair<const char*, std::vector<const char*>> targets[] = {
        { "driveModDepth", { "drive" } },
        { "crushModDepth", { "crush" } },
        { "downsampModDepth", { "downsamp" } },
        { "filterFreqModDepth", { "lowpassFreq", "hipassFreq" } },
        { "filterResModDepth", { "lowpassRes", "hipassRes" } },
    };

    for (const auto& [depthId, knobIds] : targets)
    {
        for (const auto* knobId : knobIds)
            EXPECT_EQ (desk.knob (knobId).getModDepth(), 0.0f) << knobId;

        desk.set (depthId, 40.0);

        for (const auto* knobId : knobIds)
            EXPECT_FLOAT_EQ (desk.knob (knobId).getModDepth(), 0.4f) << knobId;
    }
}

TEST (Panels, ChangeTheFaceOfTheRate)
{
    Desk desk;
    const auto expectFree = [&desk] (bool isFree)
    {
        EXPECT_EQ (desk.widget ("lfoFreeRate").isVisible(), isFree);
        EXPECT_EQ (desk.widget ("lfoSyncedPeriod").isVisible(), ! isFree);
        EXPECT_EQ (desk.periodList().isVisible(), ! isFree);
    };

    expectFree (true);
    desk.window.click (desk.tab ("lfoSyncOrFree", 1));
    TestWindow::runMessages (afterTimers);
    EXPECT_EQ (desk.get ("lfoSyncOrFree"), 1.0);
    expectFree (false);

    for (const int index : { 0, 16, 32 })
    {
        desk.set ("lfoSyncedPeriod", index);
        EXPECT_EQ (desk.periodList().getSelectedIndex(), index);
        EXPECT_EQ (desk.periodList().getMainButton().getButtonText(), getLfoDivision (index).text);
    }
}

TEST (Panels, TurnTheSyncedRateByADragAndOpenItsMenuByAClick)
{
    Desk desk;
    desk.set ("lfoSyncOrFree", 1.0);
    desk.set ("lfoSyncedPeriod", 16.0);
    desk.window.drag (desk.slider ("lfoSyncedPeriod"), { 0, -60 });
    TestWindow::runMessages (afterTimers);
    EXPECT_GT (desk.get ("lfoSyncedPeriod"), 16.0);
    EXPECT_FALSE (desk.periodList().getMenu().isMenuOpen());

    const auto before = desk.get ("lfoSyncedPeriod");

    if (TestWindow::hasDisplay())
    {
        desk.window.click (desk.slider ("lfoSyncedPeriod"));
        auto hasOpened = false;

        // JUCE takes a menu away again while another process has the keyboard.
        for (int waited = 0; waited < 20 * afterTimers && ! hasOpened; waited += 5)
        {
            TestWindow::runMessages (5);
            hasOpened = desk.periodList().getMenu().isMenuOpen();
        }

        EXPECT_TRUE (hasOpened);
        EXPECT_EQ (desk.get ("lfoSyncedPeriod"), before);
    }
}

TEST (Panels, TakeAPeriodFromTheMenuAsOneUndoStepWithoutAGesture)
{
    Desk desk;
    desk.set ("lfoSyncOrFree", 1.0);
    desk.set ("lfoSyncedPeriod", 19.0);
    desk.window.drag (desk.slider ("drive"), { 0, -40 });
    const auto drive = desk.get ("drive");
    EditListener host (desk.processor.processor);
    desk.periodList().getMenu().setSelected (22, true);
    EXPECT_EQ (desk.get ("lfoSyncedPeriod"), 22.0);
    EXPECT_EQ (host.numBegun, 0);
    EXPECT_TRUE (desk.undo().undo());
    EXPECT_EQ (desk.get ("lfoSyncedPeriod"), 19.0);
    EXPECT_EQ (desk.get ("drive"), drive);
}

TEST (Panels, NameThePeriodsAsTheParameterDoes)
{
    VorloTransparentButtonLookAndFeel look;
    const auto buttons = makePeriodButtons (look);
    ASSERT_EQ (buttons.size(), lfoDivisions.size());

    for (size_t i = 0; i < buttons.size(); ++i)
        EXPECT_EQ (buttons[i]->getButtonText(), lfoDivisions[i].text) << i;
}

TEST (Panels, LeaveAValueTextInAKnobToTheKnob)
{
    Desk desk;
    auto& text = desk.valueText ("drive");
    EditListener host (desk.processor.processor);
    desk.window.drag (text, { 0, -50 });
    EXPECT_NEAR (desk.get ("drive"), 20.0, 1.0); // 250 pixels are the whole range
    EXPECT_EQ (host.numBegun, 1);
    EXPECT_EQ (host.numEnded, 1);
    EXPECT_EQ (host.changesOutsideGestures, 0);
    EXPECT_FALSE (text.isBeingEdited());

    desk.window.turnWheel (text, 1.0f);
    EXPECT_GT (desk.get ("drive"), 21.0);

    desk.window.doubleClick (text);
    TestWindow::runMessages (afterTimers);
    EXPECT_EQ (desk.get ("drive"), 0.0);
    EXPECT_FALSE (text.isBeingEdited());
}

TEST (Panels, LetAValueBeTyped)
{
    Desk desk;
    auto& text = desk.valueText ("lowpassFreq");
    desk.window.click (text);
    ASSERT_TRUE (text.isBeingEdited());
    EXPECT_EQ (text.getCurrentTextEditor()->getText(), "8000"); // without its unit

    for (const auto key : { '4', '4', '0' })
        desk.window.type (juce::KeyPress (key, {}, static_cast<juce::juce_wchar> (key)));

    desk.window.type (juce::KeyPress (juce::KeyPress::returnKey));
    TestWindow::runMessages (afterTimers);
    EXPECT_EQ (desk.get ("lowpassFreq"), 440.0);
    EXPECT_EQ (text.getText(), "440 Hz");
    EXPECT_TRUE (desk.undo().undo());
    EXPECT_EQ (desk.get ("lowpassFreq"), 8000.0);
}

TEST (Panels, WalkTheirControlsInReadingOrder)
{
    Desk desk;
    desk.slider ("drive").grabKeyboardFocus();
    const char* order[] = { "crush",         "downsamp",        "bypassFilter", "filterType",
                            "filterType",    "lowpassFreq",     "lowpassRes",   "bypassDrySignal",
                            "dry",           "bypassWetSignal", "wet",          "dryWetLink",
                            "lfoSyncOrFree", "lfoSyncOrFree",   "lfoFreeRate",  "lfoWaveform" };

    for (const auto* id : order)
    {
        desk.window.type (juce::KeyPress (juce::KeyPress::tabKey));
        auto* const focused = juce::Component::getCurrentlyFocusedComponent();
        ASSERT_NE (focused, nullptr) << id;
        EXPECT_TRUE (desk.widget (id).isParentOf (focused)) << id << " " << focused->getName();
    }
}

TEST (Panels, TellScreenReadersWhatTheirControlsAre)
{
    OpenEditor open;

    for (auto* widget : open.editor->getWidgets())
        for (auto* child : widget->getChildren())
            EXPECT_TRUE (child->getTitle().isNotEmpty()) << widget->getParam().getId();
}

TEST (Panels, RepaintNothingAtRest)
{
    Desk desk;
    TestWindow::runMessages (500);
    desk.window.takeNumRepaints();
    TestWindow::runMessages (500);
    EXPECT_EQ (desk.window.takeNumRepaints(), 0);
    desk.set ("drive", 50.0);
    EXPECT_GT (desk.window.takeNumRepaints(), 0);
}
