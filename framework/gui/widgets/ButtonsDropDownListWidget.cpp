// The way between a drop-down of buttons and its parameter.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/ButtonsDropDownListWidget.h"

namespace zembra
{

ButtonsDropDownListWidget::ButtonsDropDownListWidget (PluginProcessor& processorToUse,
                                                      const juce::String& paramId,
                                                      ButtonsPopupMenu::Buttons itemButtons)
    : PluginWidget (processorToUse, paramId),
      list (std::move (itemButtons))
{
    list.getMainButton().setTitle (getParam().getName());
    list.addListener (this);
    list.addMouseListener (this, true);
    addAndMakeVisible (list);
    listenTo (getParam());
}

ButtonsDropDownListWidget::~ButtonsDropDownListWidget()
{
    stopListening();
    list.removeListener (this);
}

void ButtonsDropDownListWidget::updateFromParam()
{
    list.setSelectedIndex (juce::roundToInt (getParam().getValue()), false);
}

void ButtonsDropDownListWidget::itemSelected (ButtonsDropDownList*, int index)
{
    editInOneStep (getParam(), index);
}

} // namespace zembra
