// The filter panel: bypass, type, and one pair of knobs for each type.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/Relaxed.h"
#include "framework/gui/widgets/TabWidget.h"
#include "product/gui/PanelHelpers.h"

/** Each filter type has parameters of its own. The two pairs of knobs stand at the same place and
    the type decides which one is visible; the hidden one keeps following its parameters.
*/
class FilterComp final : public juce::Component,
                         private juce::Timer,
                         private zembra::Param::Listener
{
public:
    /** @param iconLookAndFeel  draws the type's icons; outlives this panel */
    FilterComp (VorloProcessor& processor, zembra::PluginEditor& editor,
                juce::LookAndFeel& iconLookAndFeel);
    ~FilterComp() override;

    /** The knob that the depth panel lines up with. */
    const juce::Component& getHipassResKnob() const { return *hipassResKnob; }

    void resized() override;

private:
    void paramChanged (zembra::Param*, double, double, int) override;
    void timerCallback() override;
    void addTypeTabs (VorloProcessor&, zembra::PluginEditor&, juce::LookAndFeel&);
    void showState();
    void showDepths();

    zembra::Param &bypassFilter, &filterType, &filterFreqModDepth, &filterResModDepth;
    zembra::Relaxed<bool> stateChanged{ false }, depthChanged{ false };
    zembra::Toggle* bypassToggle = nullptr;
    zembra::TabWidget* typeTabs = nullptr;
    ControlledKnob *lowpassFreqKnob = nullptr, *lowpassResKnob = nullptr;
    ControlledKnob *hipassFreqKnob = nullptr, *hipassResKnob = nullptr;
    std::unique_ptr<juce::Label> freqLabel, resLabel;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (FilterComp)
};
