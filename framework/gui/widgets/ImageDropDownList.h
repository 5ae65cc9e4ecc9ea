// A drop-down of images bound to a choice parameter.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/widgets/DrawableDropDownList.h"

namespace zembra
{

class ImageDropDownList final : public DrawableDropDownList
{
public:
    using DrawableDropDownList::DrawableDropDownList;

    void addImage (const juce::Image& image) { addItem (juce::DrawableImage (image)); }

private:
    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ImageDropDownList)
};

} // namespace zembra
