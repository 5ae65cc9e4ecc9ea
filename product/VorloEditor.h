// The product's editor: its look, its panels and the constants of its window.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "product/gui/VorloMainComponent.h"
#include "product/gui/WordmarkView.h"

class VorloEditor final : public zembra::PluginEditor
{
public:
    explicit VorloEditor (VorloProcessor& processor);
    ~VorloEditor() override;

    juce::String getChangeLogUrl() const override;
    juce::String getProductPageUrl() const override;
    SizeLimits getSizeLimits() const override { return { 300, 150, 1000, 500 }; }
    double getAspectRatio() const override { return 2.37; }
    void setHiResDisplay (bool shouldBeHiRes) override;

    const VorloMainComponent& getMainComponent() const { return *mainComponent; }

    /** Empty: the children cover the editor. */
    void paint (juce::Graphics&) override {}
    void resized() override;

private:
    void layOutWordmarks();

    VorloProcessor& vorloProcessor;
    VorloLookAndFeel lookAndFeel;
    VorloTransparentButtonLookAndFeel transparentButtonLookAndFeel;
    WordmarkView makerLogo, productLogo;
    std::unique_ptr<VorloMainComponent> mainComponent;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (VorloEditor)
};
