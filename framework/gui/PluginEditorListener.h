// Keeps an editor on its display, and everything that depends on its size in step.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

class PluginEditor;

/** The law of the editor's size: on each resize the display becomes the limit. [message thread] */
class PluginEditorListener final : public juce::ComponentListener
{
public:
    explicit PluginEditorListener (PluginEditor& editorToUse) : editor (editorToUse) {}

    void componentMovedOrResized (juce::Component&, bool wasMoved, bool wasResized) override;

private:
    /** Sets the limits for a display and cuts the editor to it; true if that changed its size, and
        so has run this law again already.
    */
    bool fitTo (juce::Rectangle<int> display);

    PluginEditor& editor;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PluginEditorListener)
};

} // namespace zembra
