// Knobs and layout of the depth panel.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/gui/ModDepthComp.h"

namespace
{

struct DepthInfo
{
    const char *paramId, *label, *help;
};

constexpr std::array<DepthInfo, 5> depthInfos{ {
    { paramId::driveModDepth, "drive", "Adjust the modulation depth of the drive control" },
    { paramId::crushModDepth, "crush", "Adjust the modulation depth of the crush control" },
    { paramId::downsampModDepth, "dwsp", "Adjust the modulation depth of the downsample control" },
    { paramId::filterFreqModDepth, "freq",
      "Adjust the modulation depth of the filter's frequency" },
    { paramId::filterResModDepth, "res", "Adjust the modulation depth of the filter's resonance" },
} };

} // namespace

ModDepthComp::ModDepthComp (VorloProcessor& processor, zembra::PluginEditor& editor)
{
    for (size_t i = 0; i < depths.size(); ++i)
        addLabel (*this, depths[i].label, depthInfos[i].label);

    for (size_t i = 0; i < depths.size(); ++i)
    {
        depths[i].knob = addFader (processor, editor, *this, depthInfos[i].paramId,
                                   juce::Slider::RotaryHorizontalVerticalDrag,
                                   juce::Slider::TextBoxRight, depthInfos[i].help);
        depths[i].knob->setExplicitFocusOrder (static_cast<int> (i) + 1);
    }
}

void ModDepthComp::resized()
{
    const auto width = static_cast<float> (getWidth());
    const auto size = juce::jmin (juce::roundToInt (width / 6.0f), partOf (getHeight(), 0.8f));
    const auto gap = juce::roundToInt (static_cast<float> (size) / 6.0f);
    const juce::Rectangle<int> first (gap, partOf (getHeight() - size, 0.5f), size, size);
    const auto labelTop = first.getBottom() - partOf (size, 0.25f);

    for (int i = 0; auto& depth : depths)
    {
        const auto bounds = first.translated (i++ * (size + gap), 0);
        depth.knob->setBounds (bounds);
        depth.label->setBounds (bounds.withTop (labelTop));
    }
}
