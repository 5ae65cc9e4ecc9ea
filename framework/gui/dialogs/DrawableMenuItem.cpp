// Drawing of a menu's row that is a picture.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/dialogs/DrawableMenuItem.h"

namespace zembra
{

namespace
{

constexpr float margin = 2.0f;

} // namespace

DrawableMenuItem::DrawableMenuItem (const juce::Drawable& drawableToCopy,
                                    juce::Point<int> sizeToUse)
    : drawable (drawableToCopy.createCopy()),
      size (sizeToUse)
{
}

void DrawableMenuItem::getIdealSize (int& idealWidth, int& idealHeight)
{
    idealWidth = size.x;
    idealHeight = size.y;
}

void DrawableMenuItem::paint (juce::Graphics& g)
{
    if (isItemHighlighted())
        g.fillAll (findColour (juce::PopupMenu::highlightedBackgroundColourId));

    const auto isEnabledItem = getItem() == nullptr || getItem()->isEnabled;
    drawable->drawWithin (g, getLocalBounds().toFloat().reduced (margin),
                          juce::RectanglePlacement::centred, isEnabledItem ? 1.0f : 0.5f);
}

} // namespace zembra
