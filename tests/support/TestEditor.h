// The smallest product's editor.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/PluginEditor.h"
#include "tests/support/TestProcessor.h"

/** A frame with limits and ratio that a test chooses, and no panel. */
class TestEditor final : public zembra::PluginEditor
{
public:
    explicit TestEditor (zembra::PluginProcessor& processorToUse) : PluginEditor (processorToUse) {}

    juce::String getChangeLogUrl() const override { return {}; }
    juce::String getProductPageUrl() const override { return {}; }
    SizeLimits getSizeLimits() const override { return limits; }
    double getAspectRatio() const override { return aspect; }
    void setHiResDisplay (bool isHiRes) override { hiRes = isHiRes; }

    SizeLimits limits{ 300, 150, 1000, 500 };
    double aspect = 2.37;
    bool hiRes = false;
};
