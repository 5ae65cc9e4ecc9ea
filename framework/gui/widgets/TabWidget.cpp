// The grid of a choice parameter's buttons.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/TabWidget.h"

namespace zembra
{

namespace
{

constexpr int radioGroup = 123;

} // namespace

TabWidget::TabWidget (PluginProcessor& processorToUse, const juce::String& paramId)
    : PluginWidget (processorToUse, paramId)
{
    for (int i = 0; i < getParam().getNumSteps(); ++i)
        adopt (*buttons.add (std::make_unique<juce::TextButton> (juce::String (i))));

    listenTo (getParam());
}

TabWidget::~TabWidget()
{
    stopListening();

    for (auto* button : buttons)
        button->removeListener (this);
}

void TabWidget::adopt (juce::Button& button)
{
    button.setRadioGroupId (radioGroup);
    button.setClickingTogglesState (true);
    button.setWantsKeyboardFocus (true);
    button.addListener (this);
    button.addMouseListener (this, false);
    addAndMakeVisible (button);
}

void TabWidget::setButton (int index, std::unique_ptr<juce::Button> button)
{
    auto* const old = buttons[index];
    jassert (old != nullptr && button != nullptr);

    if (old == nullptr || button == nullptr)
        return;

    const auto wasOn = old->getToggleState();
    const auto text = getParam().getText (static_cast<float> (index), 64);
    button->setTooltip (old->getTooltip());
    button->setTitle (getParam().getName() + " " + text);
    auto& added = *button;
    buttons.set (index, button.release());
    adopt (added);
    added.setToggleState (wasOn, juce::dontSendNotification);
    resized();
}

void TabWidget::setTooltips (const juce::StringArray& newTooltips)
{
    tooltips = newTooltips;

    for (int i = 0; i < juce::jmin (buttons.size(), tooltips.size()); ++i)
        buttons.getUnchecked (i)->setTooltip (tooltips[i]);
}

void TabWidget::setNumRows (int newNumRows)
{
    numRows = juce::jmax (1, newNumRows);
    resized();
}

void TabWidget::buttonClicked (juce::Button* button)
{
    const auto index = buttons.indexOf (button);

    if (button->getToggleState() && index >= 0)
        editInOneStep (getParam(), index);
}

void TabWidget::updateFromParam()
{
    if (auto* const button = buttons[static_cast<int> (getParam().getValue())])
    {
        button->setToggleState (true, juce::dontSendNotification);
        repaint();
    }
}

void TabWidget::mouseEnter (const juce::MouseEvent& event)
{
    const auto index = buttons.indexOf (dynamic_cast<juce::Button*> (event.eventComponent));

    if (index >= 0 && tooltips[index].isNotEmpty())
    {
        setTooltip (tooltips[index]);
        buttons.getUnchecked (index)->setTooltip (tooltips[index]);
    }

    PluginWidget::mouseEnter (event);
}

void TabWidget::resized()
{
    const auto numColumns = juce::jmax (1, buttons.size() / numRows);
    const auto cellWidth = getWidth() / numColumns;
    const auto cellHeight = getHeight() / numRows;

    for (int i = 0; i < juce::jmin (buttons.size(), numColumns * numRows); ++i)
        buttons.getUnchecked (i)->setBounds ((i % numColumns) * cellWidth,
                                             (i / numColumns) * cellHeight, cellWidth, cellHeight);
}

} // namespace zembra
