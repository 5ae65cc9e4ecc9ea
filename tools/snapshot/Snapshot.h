// An editor that is opened off-screen to be painted.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "product/VorloProcessor.h"
#include "tools/snapshot/SnapshotOptions.h"

/** Holds a processor and its editor. Settings and presets of the user are neither read nor written.
    Needs no display, but for what opens a window of its own. [message thread]
*/
class Snapshot final
{
public:
    /** How long the message loop must run between open() and paint(), in milliseconds, until the
        editor's timers have brought all controls into step with their parameters.
    */
    static constexpr int settlingTime = 300;

    explicit Snapshot (SnapshotOptions options);
    ~Snapshot();

    /** Brings the parameters into the wanted state and opens the editor.
        @returns  what is wrong, as one line; empty if nothing is
    */
    juce::String open();

    /** Shows what the options name, and paints it: the editor, or one of its windows. */
    juce::Image paint();

    VorloProcessor& getProcessor() noexcept { return processor; }

    /** Writes a picture as PNG, whole or not at all.
        @returns  what is wrong, as one line; empty if nothing is
    */
    static juce::String writePng (const juce::Image& picture, const juce::File& file);

private:
    juce::String applySettings();

    const SnapshotOptions options;
    const juce::TemporaryFile home; ///< a folder that nothing is ever written to
    VorloProcessor processor;
    std::unique_ptr<juce::AudioProcessorEditor> editor;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (Snapshot)
};
