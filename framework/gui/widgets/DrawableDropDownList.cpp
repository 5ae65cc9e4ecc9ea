// The way between a drop-down of pictures and its parameter.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/DrawableDropDownList.h"

namespace zembra
{

DrawableDropDownList::DrawableDropDownList (PluginProcessor& processorToUse,
                                            const juce::String& paramId)
    : PluginWidget (processorToUse, paramId)
{
    button.setTitle (getParam().getName());
    button.addListener (this);
    button.addMouseListener (this, false);
    addAndMakeVisible (button);
    addChildComponent (menu);
    listenTo (getParam());
}

DrawableDropDownList::~DrawableDropDownList()
{
    stopListening();
    button.removeListener (this);
}

void DrawableDropDownList::addItem (const juce::Drawable& drawable)
{
    pictures.add (drawable.createCopy());
    menu.addItem (drawable);
    updateFromParam();
}

void DrawableDropDownList::updateFromParam()
{
    if (const auto* const picture = pictures[getIndex()])
        button.setImages (picture);
}

void DrawableDropDownList::buttonClicked (juce::Button*)
{
    menu.show (button, getIndex(), [this] (int index) { choose (index); });
}

void DrawableDropDownList::choose (int index)
{
    editInOneStep (getParam(), index);
    updateFromParam();
}

} // namespace zembra
