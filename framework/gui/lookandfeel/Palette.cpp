// The rows of the framework's colour tables.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/Palette.h"

#include "framework/gui/lookandfeel/ColourIds.h"

namespace zembra
{

namespace
{

// Two accents and a scale of greys, from the darkest to the lightest.
const juce::Colour blue{ 0xff9babda };
const juce::Colour orange{ 0xffa56b2a };
const juce::Colour black{ 0xff000000 };
const juce::Colour night{ 0xff141414 };
const juce::Colour coal{ 0xff191919 };
const juce::Colour slate{ 0xff222222 };
const juce::Colour iron{ 0xff333333 };
const juce::Colour steel{ 0xff444444 };
const juce::Colour grey{ 0xff808080 };
const juce::Colour silver{ 0xffaeaeae };
const juce::Colour light{ 0xffd3d3d3 };
const juce::Colour clear{ 0x00000000 };

} // namespace

void applyBasePalette (juce::LookAndFeel& lookAndFeel)
{
    applyColours (
        lookAndFeel,
        {
            { knobCapColourId, night },
            { knobTrackColourId, steel },
            { knobTrackOffColourId, steel.withAlpha (0.4f) },
            { knobValueColourId, blue },
            { frozenColourId, juce::Colour (0xff0088ee) },
            { knobModColourId, orange },
            { toggleTextColourId, blue },
            { toggleOffColourId, steel },
            { toggleBoxColourId, grey },
            { mainBackgroundColourId, night },
            { mainOutlineColourId, black },
            { separatorColourId, juce::Colour (0xff292929) },
            { stripBackgroundColourId, coal },
            { windowBackgroundColourId, slate },
            { accentColourId, blue },
            { logoColourId, silver },
            { focusColourId, blue.withAlpha (0.8f) },
            { freezerMarkColourId, blue },
            { tooltipBackgroundColourId, night.withAlpha (0.4f) },
            { tooltipTextColourId, silver },
            { displayTextOutlineColourId, clear },
            { dropDownTextColourId, grey },
            { dropDownBackgroundColourId, clear },
            { midiLearnColourId, orange.withAlpha (0.35f) },
            { midiLearnOpenColourId, orange.withAlpha (0.7f) },

            { juce::TextButton::buttonColourId, iron },
            { juce::TextButton::buttonOnColourId, steel },
            { juce::TextButton::textColourOffId, light },
            { juce::TextButton::textColourOnId, blue },
            { juce::ToggleButton::textColourId, light },
            { juce::ToggleButton::tickColourId, blue },
            { juce::ToggleButton::tickDisabledColourId, grey },
            { juce::DrawableButton::textColourId, light },
            { juce::DrawableButton::textColourOnId, blue },
            { juce::DrawableButton::backgroundColourId, clear },
            { juce::DrawableButton::backgroundOnColourId, clear },
            { juce::HyperlinkButton::textColourId, blue },

            { juce::Label::textColourId, light },
            { juce::Label::backgroundColourId, clear },
            { juce::Label::outlineColourId, clear },
            { juce::Label::textWhenEditingColourId, light },
            { juce::Label::backgroundWhenEditingColourId, black },
            { juce::Label::outlineWhenEditingColourId, grey },

            { juce::Slider::backgroundColourId, clear },
            { juce::Slider::thumbColourId, blue },
            { juce::Slider::trackColourId, steel },
            { juce::Slider::rotarySliderFillColourId, blue },
            { juce::Slider::rotarySliderOutlineColourId, steel },
            { juce::Slider::textBoxTextColourId, light },
            { juce::Slider::textBoxBackgroundColourId, clear },
            { juce::Slider::textBoxHighlightColourId, grey },
            { juce::Slider::textBoxOutlineColourId, clear },

            { juce::TextEditor::backgroundColourId, night },
            { juce::TextEditor::textColourId, light },
            { juce::TextEditor::highlightColourId, blue.withAlpha (0.4f) },
            { juce::TextEditor::highlightedTextColourId, juce::Colours::white },
            { juce::TextEditor::outlineColourId, steel },
            { juce::TextEditor::focusedOutlineColourId, grey },
            { juce::TextEditor::shadowColourId, clear },
            { juce::CaretComponent::caretColourId, light },

            { juce::ComboBox::backgroundColourId, iron },
            { juce::ComboBox::textColourId, light },
            { juce::ComboBox::outlineColourId, steel },
            { juce::ComboBox::buttonColourId, steel },
            { juce::ComboBox::arrowColourId, silver },
            { juce::ComboBox::focusedOutlineColourId, blue },

            { juce::PopupMenu::backgroundColourId, coal },
            { juce::PopupMenu::textColourId, silver },
            { juce::PopupMenu::headerTextColourId, grey },
            { juce::PopupMenu::highlightedBackgroundColourId, slate },
            { juce::PopupMenu::highlightedTextColourId, blue },

            { juce::ListBox::backgroundColourId, night },
            { juce::ListBox::outlineColourId, clear },
            { juce::ListBox::textColourId, light },
            { juce::TreeView::backgroundColourId, clear },
            { juce::TreeView::linesColourId, iron },
            { juce::TreeView::selectedItemBackgroundColourId, blue.withAlpha (0.25f) },
            { juce::TreeView::dragAndDropIndicatorColourId, orange },
            { juce::DirectoryContentsDisplayComponent::highlightColourId, blue.withAlpha (0.25f) },
            { juce::DirectoryContentsDisplayComponent::textColourId, silver },
            { juce::DirectoryContentsDisplayComponent::highlightedTextColourId, light },
            { juce::TableHeaderComponent::textColourId, silver },
            { juce::TableHeaderComponent::backgroundColourId, slate },
            { juce::TableHeaderComponent::outlineColourId, iron },
            { juce::TableHeaderComponent::highlightColourId, iron },
            { juce::ScrollBar::backgroundColourId, clear },
            { juce::ScrollBar::thumbColourId, steel },
            { juce::ScrollBar::trackColourId, clear },

            { juce::TabbedComponent::backgroundColourId, slate },
            { juce::TabbedComponent::outlineColourId, iron },
            { juce::TabbedButtonBar::tabTextColourId, grey },
            { juce::TabbedButtonBar::frontTextColourId, light },
            { juce::TabbedButtonBar::tabOutlineColourId, iron },
            { juce::TabbedButtonBar::frontOutlineColourId, iron },

            { juce::ResizableWindow::backgroundColourId, slate },
            { juce::DocumentWindow::textColourId, silver },
            { juce::BubbleComponent::backgroundColourId, coal },
            { juce::BubbleComponent::outlineColourId, steel },
            { juce::TooltipWindow::backgroundColourId, coal },
            { juce::TooltipWindow::textColourId, light },
            { juce::TooltipWindow::outlineColourId, steel },
            { juce::AlertWindow::backgroundColourId, slate },
            { juce::AlertWindow::textColourId, light },
            { juce::AlertWindow::outlineColourId, black },
            { juce::GroupComponent::outlineColourId, iron },
            { juce::GroupComponent::textColourId, silver },
            { juce::ProgressBar::backgroundColourId, night },
            { juce::ProgressBar::foregroundColourId, blue },
        });
}

void applyFlatPalette (juce::LookAndFeel& lookAndFeel)
{
    const juce::Colour ochre{ 0xffaa8800 };
    const juce::Colour paleBlue{ 0xffb2d7ff };
    const juce::Colour vividBlue{ 0xff3c8cfa };

    applyColours (
        lookAndFeel,
        {
            { knobModColourId, ochre },
            { focusColourId, paleBlue.withAlpha (0.75f) },
            { juce::HyperlinkButton::textColourId, paleBlue },
            { juce::TextEditor::highlightColourId, vividBlue.withAlpha (0.45f) },
            { juce::TextEditor::focusedOutlineColourId, vividBlue.withAlpha (0.7f) },
            { juce::ComboBox::focusedOutlineColourId, vividBlue.withAlpha (0.7f) },
            { juce::TreeView::selectedItemBackgroundColourId, vividBlue.withAlpha (0.25f) },
            { juce::DirectoryContentsDisplayComponent::highlightColourId,
              vividBlue.withAlpha (0.25f) },
        });
}

} // namespace zembra
