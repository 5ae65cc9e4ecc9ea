// The LFO panel: free or synced, rate, waveform.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/dialogs/ButtonsDropDownList.h"
#include "framework/gui/widgets/TabWidget.h"
#include "product/gui/PanelHelpers.h"
#include "product/gui/VorloTransparentButtonLookAndFeel.h"

/** The rate has two faces at one place: a knob in hertz, and a knob of note values with their name in
    its middle. Dragging the second turns it; clicking it opens a menu of all note values.
*/
class VorloLfoControlsComponent final : public juce::Component,
                                        private juce::Timer,
                                        private zembra::ButtonsDropDownList::Listener
{
public:
    /** @param iconLookAndFeel  draws the waveforms' icons; outlives this panel */
    VorloLfoControlsComponent (VorloProcessor& processor, zembra::PluginEditor& editor,
                               juce::LookAndFeel& iconLookAndFeel);
    ~VorloLfoControlsComponent() override;

    void mouseUp (const juce::MouseEvent&) override;
    void paint (juce::Graphics&) override;
    void resized() override;

private:
    void timerCallback() override;
    void itemSelected (zembra::ButtonsDropDownList*, int index) override;
    void addRateControls();
    void addSyncModeTabs();
    void addWaveformTabs (juce::LookAndFeel&);

    VorloTransparentButtonLookAndFeel transparentLookAndFeel;
    VorloProcessor& processor;
    zembra::PluginEditor& editor;
    zembra::Param &lfoSyncOrFree, &lfoSyncedPeriod;
    zembra::Fader *freeRateKnob = nullptr, *syncedRateKnob = nullptr;
    std::unique_ptr<zembra::ButtonsDropDownList> syncedPeriodList;
    std::unique_ptr<juce::Label> rateLabel;
    zembra::TabWidget *syncModeTabs = nullptr, *waveformTabs = nullptr;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (VorloLfoControlsComponent)
};
