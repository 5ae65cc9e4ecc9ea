// A drop-down of buttons bound to a choice parameter.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/dialogs/ButtonsDropDownList.h"
#include "framework/gui/widgets/PluginWidget.h"

namespace zembra
{

/** The index of the chosen item is the parameter's value. */
class ButtonsDropDownListWidget final : public PluginWidget, private ButtonsDropDownList::Listener
{
public:
    ButtonsDropDownListWidget (PluginProcessor& processor, const juce::String& paramId,
                               ButtonsPopupMenu::Buttons itemButtons);
    ~ButtonsDropDownListWidget() override;

    ButtonsDropDownList& getList() noexcept { return list; }

    void updateFromParam() override;
    void resized() override { list.setBounds (getLocalBounds()); }

private:
    void itemSelected (ButtonsDropDownList*, int index) override;

    ButtonsDropDownList list;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ButtonsDropDownListWidget)
};

} // namespace zembra
