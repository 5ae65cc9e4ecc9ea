// Checks of the editor: opened and closed at every moment.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/soak/RandomAutomation.h"
#include "tools/validate/BusyThread.h"
#include "tools/validate/Check.h"
#include "tools/validate/Display.h"
#include "tools/validate/Messages.h"
#include "tools/validate/Player.h"
#include "tools/validate/PluginState.h"
#include "tools/validate/TestSignals.h"
#include "tools/validate/Values.h"

namespace validate
{

namespace
{

/** A host's window around an editor. */
class EditorWindow final : public juce::Component
{
public:
    explicit EditorWindow (juce::AudioPluginInstance& instance)
        : editor (instance.createEditorIfNeeded())
    {
        expect (editor != nullptr, "it promises an editor and makes none");
        expect (editor->getWidth() > 0 && editor->getHeight() > 0 && editor->getWidth() < 10000
                    && editor->getHeight() < 10000,
                "its editor is " + juce::String (editor->getWidth()) + " by "
                    + juce::String (editor->getHeight()));
        setOpaque (true);
        setSize (editor->getWidth(), editor->getHeight());
        setTopLeftPosition (100, 100);
        addAndMakeVisible (*editor);
        addToDesktop (0);
        setVisible (true);
    }

    ~EditorWindow() override { removeFromDesktop(); }

    void resizeTo (int width, int height)
    {
        editor->setSize (width, height);
        setSize (editor->getWidth(), editor->getHeight());
    }

private:
    std::unique_ptr<juce::AudioProcessorEditor> editor;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (EditorWindow)
};

constexpr int glanceMs = 40;

Instance openWithEditor (Bench& bench)
{
    if (! hasDisplay())
        throw Skipped{ "there is no display" };

    auto instance = bench.open();

    if (! instance->hasEditor())
        throw Skipped{ "it has no editor" };

    return instance;
}

void lookAt (juce::AudioPluginInstance& instance)
{
    {
        const EditorWindow window (instance);
        runMessages (glanceMs);
    }
    runMessages (1);
}

void opensAgainAndAgain (Bench& bench)
{
    const auto instance = openWithEditor (bench);

    for (int i = 0; i < bench.choose (4, 40); ++i)
        lookAt (*instance);

    // Closed before it has painted.
    for (int i = 0; i < 3; ++i)
        const EditorWindow window (*instance);
}

void opensBeforeAndAfterPreparing (Bench& bench)
{
    const auto instance = openWithEditor (bench);
    {
        const EditorWindow window (*instance);
        runMessages (glanceMs);
        Player player (*instance, 48000.0, 512);
        player.play (makeNoise (2, 4096));
        runMessages (glanceMs);
    }
    Player player (*instance, 96000.0, 64);
    lookAt (*instance);
    player.play (makeNoise (2, 4096));
    lookAt (*instance);
}

void opensWhileSoundRuns (Bench& bench)
{
    const auto instance = openWithEditor (bench);
    Player player (*instance, 48000.0, 256);
    player.beRestless (bench.getRandom().nextInt64());
    soak::RandomAutomation automation (*instance, bench.getRandom().nextInt64(), true);
    const auto noise = makeNoise (2, 4096);
    const auto state = getState (*instance);
    BusyThread audio ([&] { player.play (noise); });
    BusyThread host (
        [&]
        {
            automation.moveOne();
            juce::Thread::sleep (1);
        });

    for (int i = 0; i < bench.choose (4, 30); ++i)
    {
        const EditorWindow window (*instance);
        runMessages (glanceMs);
        setState (*instance, state);
        runMessages (glanceMs);
    }

    host.stop();
    audio.stop();
}

void opensForSeveralInstances (Bench& bench)
{
    std::vector<Instance> instances;
    std::vector<std::unique_ptr<EditorWindow>> windows;

    for (int i = 0; i < 3; ++i)
    {
        instances.push_back (openWithEditor (bench));
        windows.push_back (std::make_unique<EditorWindow> (*instances.back()));
    }

    runMessages (2 * glanceMs);
    windows.erase (windows.begin());
    instances.erase (instances.begin());
    runMessages (glanceMs);
    windows.clear();
}

void takesOtherSizes (Bench& bench)
{
    const auto instance = openWithEditor (bench);
    EditorWindow window (*instance);

    for (const auto& [width, height] : { std::pair{ 1500, 632 }, std::pair{ 300, 150 },
                                         std::pair{ 1, 1 }, std::pair{ 750, 316 } })
    {
        window.resizeTo (width, height);
        runMessages (glanceMs);
    }
}

const Check checks[] = {
    { "editor: opens again and again", opensAgainAndAgain },
    { "editor: before and after preparing", opensBeforeAndAfterPreparing },
    { "editor: while sound and automation run", opensWhileSoundRuns },
    { "editor: of several instances", opensForSeveralInstances },
    { "editor: takes other sizes", takesOtherSizes },
};

} // namespace

std::span<const Check> getEditorChecks() { return checks; }

} // namespace validate
