// A plain strip along the editor's top or bottom edge, with a line towards the panels.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

class PluginStrip final : public juce::Component
{
public:
    enum class Edge
    {
        top,
        bottom
    };

    explicit PluginStrip (Edge edge);

    void paint (juce::Graphics&) override;

private:
    const Edge edge;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PluginStrip)
};

} // namespace zembra
