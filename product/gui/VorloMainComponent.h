// The panel between the strips: the chain from left to right, and the modulation below it.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "product/gui/FilterComp.h"
#include "product/gui/ModDepthComp.h"
#include "product/gui/VorloLfoControlsComponent.h"

/** All sizes are parts of the panel's own, so that it scales by its layout alone. */
class VorloMainComponent final : public juce::Component,
                                 private juce::Timer,
                                 private zembra::Param::Listener
{
public:
    /** @param iconLookAndFeel  draws icons; outlives this panel */
    VorloMainComponent (VorloProcessor& processor, zembra::PluginEditor& editor,
                        juce::LookAndFeel& iconLookAndFeel);
    ~VorloMainComponent() override;

    void paint (juce::Graphics&) override;
    void resized() override;

private:
    /** A plate in the background's colour: it frames a fader by covering its edges. */
    class SimplePanel final : public juce::Component
    {
    public:
        void paint (juce::Graphics&) override;
    };

    /** A target's knob on this panel, its label, and the depth that the LFO moves it by. */
    struct Target
    {
        zembra::Param& depth;
        ControlledKnob* knob = nullptr;
        std::unique_ptr<juce::Label> label{};
    };

    /** One side of the mix. */
    struct MixChannel
    {
        zembra::Param& bypass;
        zembra::Relaxed<bool> bypassChanged{ false };
        zembra::Fader* fader = nullptr;
        zembra::Toggle* toggle = nullptr;
    };

    void paramChanged (zembra::Param*, double, double, int) override;
    void timerCallback() override;
    void addKnobs (VorloProcessor&, zembra::PluginEditor&);
    void addFaders (VorloProcessor&, zembra::PluginEditor&);
    void addMixSwitches (VorloProcessor&, zembra::PluginEditor&);
    void setColours();
    void setFocusOrder();
    std::array<zembra::Param*, 5> getWatchedParams();
    void layOutChain (int knobSize, int gap, int knobY);
    void layOutMix (int row, int knobY);
    void layOutModulation (int gap, int row);

    Target drive, crush, downsamp;
    MixChannel dry, wet;
    zembra::Relaxed<bool> depthChanged{ false };
    std::unique_ptr<juce::Label> modulationsLabel;
    FilterComp filterPanel;
    zembra::Toggle* linkToggle = nullptr;
    ModDepthComp depthPanel;
    VorloLfoControlsComponent lfoPanel;
    SimplePanel leftPanel, middlePanel, rightPanel;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (VorloMainComponent)
};
