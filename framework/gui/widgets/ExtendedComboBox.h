// A combo box whose menu is sized and drawn like the box.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_gui_basics/juce_gui_basics.h>

namespace zembra
{

class ExtendedComboBox final : public juce::ComboBox
{
public:
    using juce::ComboBox::ComboBox;

    void showPopup() override;

private:
    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ExtendedComboBox)
};

} // namespace zembra
