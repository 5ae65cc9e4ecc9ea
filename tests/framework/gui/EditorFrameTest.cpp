// The editor's frame: size law, polling, learn mode, settings and the watch on the window.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/Settings.h"
#include "framework/gui/widgets/Fader.h"
#include "framework/presets/PresetFileManager.h"
#include "tests/support/FakeDisplay.h"
#include "tests/support/TestEditor.h"
#include "tests/support/TestWindow.h"

#include <gtest/gtest.h>

namespace
{

/** A knob that counts its updates and offers a learn panel. */
class CountingKnob final : public zembra::Fader
{
public:
    CountingKnob (zembra::PluginProcessor& owner, const juce::String& id)
        : Fader (owner, id, juce::Slider::RotaryHorizontalVerticalDrag)
    {
        setupControl (juce::Slider::NoTextBox);
    }

    void updateFromParam() override
    {
        ++numUpdates;
        Fader::updateFromParam();
    }

    std::unique_ptr<juce::Component> createLearnPanel() override
    {
        auto panel = std::make_unique<juce::Component> ("learn panel");
        learnPanel = panel.get();
        return panel;
    }

    int numUpdates = 0;
    SafePointer<juce::Component> learnPanel;
};

struct Frame
{
    CountingKnob* addKnob (const juce::String& id)
    {
        auto* knob =
            editor.addWidget (std::make_unique<CountingKnob> (vorlo.processor, id), &editor);
        knob->setBounds (100, 100, 100, 100);
        return knob;
    }

    TestProcessor vorlo;
    TestEditor editor{ vorlo.processor };
};

juce::CallOutBox* findCallOut (juce::Component& editor)
{
    for (auto* child : editor.getChildren())
        if (auto* box = dynamic_cast<juce::CallOutBox*> (child))
            return box;

    return nullptr;
}

} // namespace

TEST (EditorSize, IsCutToTheDisplay)
{
    struct Case
    {
        juce::Rectangle<int> display, wanted, expected;
        double aspect;
    };

    const Case cases[]{
        { { 1920, 1080 }, { 750, 316 }, { 750, 316 }, 2.37 },
        { { 1920, 1080 }, { 1920, 810 }, { 1920, 810 }, 2.37 },
        { { 1920, 1080 }, { 1921, 811 }, { 1910, 806 }, 2.37 }, // 1910 / 2.37 = 805.9
        { { 3840, 2160 }, { 5000, 2110 }, { 3830, 1616 }, 2.37 },
        { { 1920, 1080 }, { 500, 1081 }, { 490, 980 }, 0.5 }, // 980 * 0.5
        { { 1000, 400 }, { 1200, 2400 }, { 150, 300 }, 0.5 }, // too wide, then still too high
    };

    for (const auto& [display, wanted, expected, aspect] : cases)
    {
        const FakeDisplay fake (display);
        Frame f;
        f.editor.aspect = aspect;

        f.editor.setBounds (wanted);
        EXPECT_EQ (f.editor.getBounds(), expected) << wanted.toString();
        EXPECT_EQ (f.vorlo.processor.getPluginEditorWidth(), expected.getWidth());
        EXPECT_EQ (f.vorlo.processor.getPluginEditorHeight(), expected.getHeight());
    }
}

TEST (EditorSize, LimitsHoldUntilTheFirstResizeAndThenTheDisplayDoes)
{
    const FakeDisplay fake ({ 1920, 1080 });
    Frame f;
    f.editor.setSize (750, 316);
    f.editor.initialise();
    auto& limits = *f.editor.getConstrainer();
    EXPECT_EQ (limits.getMinimumWidth(), 300);
    EXPECT_EQ (limits.getMinimumHeight(), 150);
    EXPECT_EQ (limits.getMaximumWidth(), 1000);
    EXPECT_EQ (limits.getMaximumHeight(), 500);
    EXPECT_EQ (limits.getFixedAspectRatio(), 2.37);

    f.editor.setTopLeftPosition (10, 10); // a move doesn't count
    EXPECT_EQ (limits.getMaximumWidth(), 1000);
    f.editor.setSize (760, 321);
    EXPECT_EQ (limits.getMaximumWidth(), 1920);
    EXPECT_EQ (limits.getMaximumHeight(), 990);
}

TEST (EditorSize, SenselessLimitsAreMended)
{
    Frame f;
    f.editor.limits = { -5, 200, -10, 100 };
    f.editor.aspect = -1.0;
    f.editor.initialise();
    const auto& limits = *f.editor.getConstrainer();
    EXPECT_EQ (limits.getMinimumWidth(), 0);
    EXPECT_EQ (limits.getMaximumWidth(), 0);
    EXPECT_EQ (limits.getMaximumHeight(), 200);
    EXPECT_EQ (limits.getFixedAspectRatio(), 0.0);
}

TEST (EditorPoll, JoinsAllChangesOfATickAndRestsOtherwise)
{
    Frame f;
    auto* const knob = f.addKnob (paramId::drive);
    f.editor.setSize (750, 316);
    TestWindow window (f.editor);
    TestWindow::runMessages (100);
    const auto atStart = knob->numUpdates;

    for (int i = 1; i <= 100; ++i)
        f.vorlo.processor.setParameter (5, static_cast<float> (i) * 0.01f);

    TestWindow::runMessages (100);
    EXPECT_EQ (knob->numUpdates, atStart + 1);
    EXPECT_NEAR (knob->getSlider().getValue(), 100.0, 1e-5);

    window.takeNumRepaints();
    TestWindow::runMessages (300);
    EXPECT_EQ (knob->numUpdates, atStart + 1);
    EXPECT_EQ (window.takeNumRepaints(), 0);
}

TEST (EditorLearnMode, ControlsRestAndAClickOpensThePanel)
{
    Frame f;
    f.vorlo.param (paramId::crush).setMidiLearnable (false);
    auto* const learnable = f.addKnob (paramId::drive);
    auto* const other = f.addKnob (paramId::crush);
    other->setTopLeftPosition (300, 100);
    f.editor.setSize (750, 316);
    TestWindow window (f.editor);

    f.editor.setMidiLearnMode (true);
    EXPECT_FALSE (learnable->isEnabled() || other->isEnabled());
    window.drag (other->getSlider(), { 0, -50 });
    EXPECT_EQ (findCallOut (f.editor), nullptr);
    window.drag (learnable->getSlider(), { 0, -50 });
    EXPECT_EQ (f.vorlo.get (paramId::drive), 0.0);
    ASSERT_NE (findCallOut (f.editor), nullptr);
    EXPECT_NE (learnable->learnPanel, nullptr);
    EXPECT_EQ (f.vorlo.processor.getMidiLearnParam(), &f.vorlo.param (paramId::drive));

    // The panel goes at once, with whatever it points to; the box a moment later.
    f.editor.dismissTransients();
    EXPECT_EQ (learnable->learnPanel, nullptr);
    EXPECT_EQ (f.vorlo.processor.getMidiLearnParam(), nullptr);
    TestWindow::runMessages (50);
    EXPECT_EQ (findCallOut (f.editor), nullptr);

    f.editor.setMidiLearnMode (false);
    EXPECT_TRUE (learnable->isEnabled() && other->isEnabled());
    window.drag (learnable->getSlider(), { 0, -50 });
    EXPECT_GT (f.vorlo.get (paramId::drive), 0.0);
}

TEST (EditorDrop, LoadsTheFirstPresetUndoably)
{
    Frame f;
    auto& manager = f.vorlo.processor.getPresetFileManager();
    const auto first = f.vorlo.folder.getChild ("first.ompreset");
    const auto second = f.vorlo.folder.getChild ("second.ompreset");
    f.vorlo.set (paramId::drive, 30.0);
    ASSERT_TRUE (manager.savePresetToFile (second));
    f.vorlo.set (paramId::drive, 60.0);
    ASSERT_TRUE (manager.savePresetToFile (first));
    f.vorlo.set (paramId::drive, 10.0);
    const juce::StringArray both{ first.getFullPathName(), second.getFullPathName() };

    EXPECT_TRUE (f.editor.isInterestedInFileDrag (both));
    EXPECT_FALSE (f.editor.isInterestedInFileDrag ({ "/somewhere/song.wav" }));
    EXPECT_FALSE (f.editor.isInterestedInFileDrag ({}));
    f.editor.filesDropped ({}, 0, 0);
    f.editor.filesDropped ({ "no path.ompreset" }, 0, 0);
    EXPECT_EQ (f.vorlo.get (paramId::drive), 10.0);

    f.editor.filesDropped (both, 5, 5);
    EXPECT_NEAR (f.vorlo.get (paramId::drive), 60.0, 1e-4);
    EXPECT_TRUE (f.vorlo.processor.getUndoManager().undo());
    EXPECT_NEAR (f.vorlo.get (paramId::drive), 10.0, 1e-4);
}

TEST (EditorSettings, AreReadAtTheStartAndWrittenBack)
{
    TestProcessor vorlo;
    EXPECT_TRUE (TestEditor (vorlo.processor).getCheckVersionOnStartup());
    TestEditor (vorlo.processor).setCheckVersionOnStartup (false);
    EXPECT_EQ (vorlo.processor.getSettings().getValue ("checkVersionOnStartup"), "0");
    EXPECT_FALSE (TestEditor (vorlo.processor).getCheckVersionOnStartup());
}

TEST (MoveDetector, OnlyEvenScalesCountAsHighResolution)
{
    using zembra::PluginMoveDetector;

    for (const auto scale : { 2.0, 4.0, 6.0 })
        EXPECT_TRUE (PluginMoveDetector::isHiResScale (scale)) << scale;

    for (const auto scale : { 0.0, 1.0, 1.25, 1.5, 2.5, 3.0 })
        EXPECT_FALSE (PluginMoveDetector::isHiResScale (scale)) << scale;
}

TEST (EditorWindow, KeepsOneEnabledChildThatNobodySees)
{
    Frame f;
    const juce::Component* found = nullptr;

    for (const auto* c : f.editor.getChildren())
        if (c->getName() == "dialogWorkaroundTb")
            found = c;

    f.editor.setSize (750, 316);
    ASSERT_NE (found, nullptr);
    EXPECT_TRUE (found->isVisible());
    EXPECT_TRUE (found->getBounds().isEmpty());
}
