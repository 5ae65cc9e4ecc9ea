// A drop-down of pictures bound to a choice parameter.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/dialogs/DrawablePopupMenu.h"
#include "framework/gui/widgets/PluginWidget.h"

namespace zembra
{

/** The button shows the picture of the chosen item, whose index is the parameter's value. */
class DrawableDropDownList : public PluginWidget, private juce::Button::Listener
{
public:
    DrawableDropDownList (PluginProcessor& processor, const juce::String& paramId);
    ~DrawableDropDownList() override;

    /** Appends an item; the list keeps copies of the drawable. */
    void addItem (const juce::Drawable& drawable);

    juce::DrawableButton& getButton() noexcept { return button; }
    DrawablePopupMenu& getMenu() noexcept { return menu; }

    /** What a choice in the menu does. */
    void choose (int index);

    void updateFromParam() override;
    void resized() override { button.setBounds (getLocalBounds()); }

private:
    void buttonClicked (juce::Button*) override;
    int getIndex() const { return juce::roundToInt (getParam().getValue()); }

    juce::OwnedArray<juce::Drawable> pictures;
    juce::DrawableButton button{ "mainButton", juce::DrawableButton::ImageFitted };
    DrawablePopupMenu menu;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (DrawableDropDownList)
};

} // namespace zembra
