// The engine that is built in.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "product/VorloProcessor.h"
#include "tools/render/Engine.h"

#include <cstdint>
#include <optional>

namespace render
{

/** A root of folders where nothing can be found or written, so that what a user has stored doesn't
    change a render.
*/
zembra::FolderRoots getNowhere();

/** The product's processor, linked into the tool. */
class LinkedEngine final : public Engine
{
public:
    /** @param seed  of the random LFO wave; without it, each render differs there */
    explicit LinkedEngine (std::optional<std::int64_t> seed);

    /** Lets MIDI events control the processor, as far as another one would let them: takes its
        channel, its map of controllers and its frozen parameters, which programs leave alone.
    */
    void enableMidi (zembra::PluginProcessor& model);

protected:
    juce::AudioProcessor& getProcessor() override { return processor; }

    /** Takes over the preset of a program change. */
    void blockDone() override { processor.deliverRealtimeChanges(); }

private:
    VorloProcessor processor{ getNowhere() };

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (LinkedEngine)
};

} // namespace render
