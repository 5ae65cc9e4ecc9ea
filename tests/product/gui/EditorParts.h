// Finds the parts of the product's editor, as a user names them.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "product/VorloEditor.h"
#include "tests/support/FakeDisplay.h"
#include "tests/support/TestProcessor.h"
#include "tests/support/TestWindow.h"

/** An open editor on a display that is large enough for any test. */
struct OpenEditor
{
    explicit OpenEditor (int width = 750, int height = 316)
        : editor (dynamic_cast<VorloEditor*> (processor.processor.createEditor()))
    {
        editor->setSize (width, height);
    }

    zembra::PluginWidget& widget (const juce::String& paramId)
    {
        for (auto* candidate : editor->getWidgets())
            if (candidate->getParam().getId() == paramId)
                return *candidate;

        throw std::runtime_error ("no widget for " + paramId.toStdString());
    }

    ControlledKnob& knob (const juce::String& paramId)
    {
        return dynamic_cast<ControlledKnob&> (widget (paramId));
    }

    zembra::ZembraSlider& slider (const juce::String& paramId)
    {
        return dynamic_cast<zembra::Fader&> (widget (paramId)).getSlider();
    }

    juce::Button& button (const juce::String& paramId)
    {
        return dynamic_cast<zembra::Toggle&> (widget (paramId)).getButton();
    }

    juce::Button& tab (const juce::String& paramId, int index)
    {
        return *dynamic_cast<zembra::TabWidget&> (widget (paramId)).getButton (index);
    }

    /** The panel that a parameter's control stands in. */
    juce::Component& panelOf (const juce::String& paramId)
    {
        return *widget (paramId).getParentComponent();
    }

    /** The label with a text that stands directly in a panel. */
    static juce::Label& label (const juce::Component& panel, const juce::String& text)
    {
        for (auto* child : panel.getChildren())
            if (auto* found = dynamic_cast<juce::Label*> (child); found && found->getText() == text)
                return *found;

        throw std::runtime_error ("no label " + text.toStdString());
    }

    FakeDisplay display{ { 0, 0, 10000, 6000 } };
    TestProcessor processor;
    std::unique_ptr<VorloEditor> editor;
};

/** Long enough for every timer of the editor to have run after a change. */
inline constexpr int afterTimers = 120;
