// The product's editor opened and closed in every situation.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/PluginEditor.h"
#include "framework/midi/ParamsMidiMapper.h"
#include "framework/presets/PresetFileManager.h"
#include "tests/support/MidiEvents.h"
#include "tests/support/TestProcessor.h"
#include "tests/support/TestWindow.h"

#include <gtest/gtest.h>

#include <malloc.h>

namespace
{

/** A host that plays, with MIDI controllers, and automates on threads of its own. */
class BusyHost final
{
public:
    explicit BusyHost (VorloProcessor& processorToUse) : processor (processorToUse)
    {
        processor.prepareToPlay (48000.0, 64);
        processor.setMidiEnabled (true);
        processor.getParamsMidiMapper().setMapping (learnedController, "drive");
        audio = std::thread ([this] { play(); });
        automation = std::thread ([this] { automate(); });
    }

    ~BusyHost()
    {
        done = true;
        audio.join();
        automation.join();
    }

private:
    void play()
    {
        juce::AudioBuffer<float> buffer (2, 64);

        for (int count = 0; ! done; ++count)
        {
            const auto value = static_cast<juce::uint8> (count % 128);
            buffer.clear();
            auto midi = makeMidi ({ { 0xb0, learnedController, value } });
            processor.processBlock (buffer, midi);
            juce::Thread::sleep (1);
        }
    }

    void automate()
    {
        juce::Random random (1);

        while (! done)
        {
            processor.setParameter (random.nextInt (processor.getNumParameters()),
                                    random.nextFloat());
            juce::Thread::sleep (1);
        }
    }

    static constexpr juce::uint8 learnedController = 20;

    VorloProcessor& processor;
    std::atomic<bool> done{ false };
    std::thread audio, automation;
};

std::unique_ptr<zembra::PluginEditor> openEditor (VorloProcessor& processor)
{
    auto* const editor = processor.createEditorIfNeeded();
    return std::unique_ptr<zembra::PluginEditor> (dynamic_cast<zembra::PluginEditor*> (editor));
}

size_t getHeapSize() { return mallinfo2().uordblks; }

} // namespace

TEST (EditorLife, ManyOpeningsUnderLoadLeaveNothingBehind)
{
    TestProcessor vorlo;
    auto& presets = vorlo.processor.getPresetFileManager();
    const auto preset = vorlo.folder.getChild ("Any.ompreset");
    ASSERT_TRUE (presets.savePresetToFile (preset));
    const BusyHost host (vorlo.processor);
    size_t afterWarmUp = 0;
    constexpr int numCycles = 100;

    for (int cycle = 0; cycle < numCycles; ++cycle)
    {
        auto editor = openEditor (vorlo.processor);
        ASSERT_NE (editor, nullptr);
        TestWindow window (*editor);
        TestWindow::runMessages (cycle % 10 == 0 ? 60 : 2);
        presets.loadPreset (preset, &vorlo.processor.getUndoManager());
        vorlo.processor.getUndoManager().clearUndoHistory(); // it grows, as it should
        window.click (*editor->getWidgets()[cycle % editor->getWidgets().size()]);
        editor.reset();
        EXPECT_EQ (vorlo.processor.getActiveEditor(), nullptr);

        if (cycle == 10)
            afterWarmUp = getHeapSize();
    }

    TestWindow::runMessages (100);
    EXPECT_LT (getHeapSize(), afterWarmUp + 100'000);
}

TEST (EditorLife, SizeIsKeptBetweenOpenings)
{
    TestProcessor vorlo;
    vorlo.processor.setPluginEditorWidth (0);
    vorlo.processor.setPluginEditorHeight (0);
    auto editor = openEditor (vorlo.processor);
    EXPECT_EQ (editor->getWidth(), 750);
    EXPECT_EQ (editor->getHeight(), 316);
    editor->setSize (600, 253);
    editor.reset();
    editor = openEditor (vorlo.processor);
    EXPECT_EQ (editor->getWidth(), 600);
    EXPECT_EQ (editor->getHeight(), 253);
}

TEST (EditorLife, TwoEditorsCloseInEitherOrder)
{
    for (const auto firstFirst : { true, false })
    {
        TestProcessor one, two;
        auto a = openEditor (one.processor), b = openEditor (two.processor);
        TestWindow::runMessages (60);
        (firstFirst ? a : b).reset();
        TestWindow::runMessages (60);
        auto& left = firstFirst ? b : a;
        EXPECT_FALSE (left->createComponentSnapshot (left->getLocalBounds()).isNull());
        left.reset();
        EXPECT_EQ (juce::Desktop::getInstance().getNumComponents(), 0);
    }
}

TEST (EditorLife, ADragSurvivesNothingButEndsItsGesture)
{
    TestProcessor vorlo;
    auto editor = openEditor (vorlo.processor);
    auto window = std::make_unique<TestWindow> (*editor);
    auto& knob = *editor->getWidgets()[0];
    window->press (knob, knob.getLocalBounds().getCentre());
    window->dragBy ({ 0, -10 });
    editor.reset();
    window->dragBy ({ 0, -10 });
    window.reset();
    TestWindow::runMessages (60);
}

TEST (EditorLife, TheTabKeyWalksEveryControlAndComesBack)
{
    TestProcessor vorlo;
    auto editor = openEditor (vorlo.processor);
    TestWindow window (*editor);
    TestWindow::runMessages (100);
    editor->getWidgets()[0]->getChildComponent (0)->grabKeyboardFocus();
    const auto* const start = juce::Component::getCurrentlyFocusedComponent();
    ASSERT_NE (start, nullptr);
    juce::Array<const juce::Component*> visited;

    do
    {
        visited.add (juce::Component::getCurrentlyFocusedComponent());
        ASSERT_TRUE (window.type (juce::KeyPress (juce::KeyPress::tabKey)));
    } while (juce::Component::getCurrentlyFocusedComponent() != start && visited.size() < 100);

    // Every widget that shows has been visited, and each place has a name.
    for (const auto* widget : editor->getWidgets())
    {
        const auto isInside = [&] (const auto* place) { return widget->isParentOf (place); };
        EXPECT_EQ (std::any_of (visited.begin(), visited.end(), isInside), widget->isShowing())
            << widget->getTitle();
    }

    for (const auto* place : visited)
    {
        ASSERT_NE (place, nullptr);
        EXPECT_TRUE (place->getTitle().isNotEmpty()) << place->getName();
    }

    editor.reset();
}
