// The depth panel: how far the LFO pulls each of its five targets.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "product/gui/PanelHelpers.h"

#include <array>

class ModDepthComp final : public juce::Component
{
public:
    ModDepthComp (VorloProcessor& processor, zembra::PluginEditor& editor);

    /** The last knob, which stands below the knob that it acts on. */
    const juce::Component& getFilterResDepthKnob() const { return *depths.back().knob; }

    void resized() override;

private:
    struct Depth
    {
        zembra::Fader* knob = nullptr;
        std::unique_ptr<juce::Label> label;
    };

    std::array<Depth, 5> depths; ///< drive, crush, downsample, filter frequency, filter resonance

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ModDepthComp)
};
