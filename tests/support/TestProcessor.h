// A processor with files of its own and a play head that a test moves.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "product/VorloProcessor.h"
#include "tests/support/TemporaryFolder.h"

/** A play head whose answer is set by hand. */
class ManualPlayHead final : public juce::AudioPlayHead
{
public:
    juce::Optional<PositionInfo> getPosition() const override { return position; }

    juce::Optional<PositionInfo> position;
};

/** VorloProcessor inside a temporary folder. */
struct TestProcessor
{
    TestProcessor() { processor.setPlayHead (&playHead); }

    zembra::Param& param (const juce::String& id)
    {
        auto* found = processor.getParamSet().getParam (id);
        jassert (found != nullptr);
        return *found;
    }

    /** Sets a plain value, exactly, as if the host had. */
    void set (const juce::String& id, double plain)
    {
        param (id).setValue (plain, zembra::sourceHost);
    }

    double get (const juce::String& id) { return param (id).getValue(); }

    void process (juce::AudioBuffer<float>& buffer)
    {
        juce::MidiBuffer midi;
        processor.processBlock (buffer, midi);
    }

    TemporaryFolder folder;
    ManualPlayHead playHead;
    VorloProcessor processor{ zembra::FolderRoots::inside (folder.get()) };
};
