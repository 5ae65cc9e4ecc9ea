// The root of the look-and-feel family: typefaces, base colours and generic drawing.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/dialogs/ButtonsListBox.h"
#include "framework/gui/dialogs/ConfirmDialogComponent.h"
#include "framework/gui/widgets/FilledPathButton.h"
#include "framework/gui/widgets/PluginWidget.h"
#include "framework/gui/widgets/PopupBubbleComponent.h"

namespace zembra
{

/** Implements JUCE's drawing interfaces and those of the framework's components. It is the default
    look and feel of the desktop while an editor is open.

    There is no global scale: fonts follow the reference height, which is the editor's height.
*/
class ZembraLookAndFeel : public juce::LookAndFeel_V3,
                          public ButtonsListBox::ZembraLookAndFeelMethods,
                          public PluginWidget::ZembraLookAndFeelMethods,
                          public ConfirmDialogComponent::ZembraLookAndFeelMethods,
                          public FilledPathButton::ZembraLookAndFeelMethods,
                          public PopupBubbleComponent::ZembraLookAndFeelMethods
{
public:
    ZembraLookAndFeel();

    /** The height that fonts follow, in pixels. */
    void setReferenceHeight (int newHeight) noexcept { referenceHeight = newHeight; }
    int getReferenceHeight() const noexcept { return referenceHeight; }

    /** Makes separators half a pixel thick; nothing else changes. */
    void setHiRes (bool shouldBeHiRes) noexcept { hiRes = shouldBeHiRes; }
    bool isHiRes() const noexcept { return hiRes; }

    /** The thickness of a separator in pixels. */
    float getHairline() const noexcept { return hiRes ? 0.5f : 1.0f; }

    /** The height of a header's or footer's menu font, as a part of the reference height. */
    void setHeaderFontRatio (float newRatio) noexcept { headerFontRatio = newRatio; }
    float getHeaderFontRatio() const noexcept { return headerFontRatio; }

    juce::Typeface::Ptr getTypefaceForFont (const juce::Font& font) override;

    int getButtonsListBoxRowHeight (ButtonsListBox&, int listHeight) override;

    void drawMidiLearnOverlay (juce::Graphics&, PluginWidget&, bool isMouseOver,
                               bool panelOpen) override;
    int getMidiLearnPanelWidth (PluginWidget&) override;
    int getMidiLearnPanelHeight (PluginWidget&) override;
    void drawKeyboardFocus (juce::Graphics&, PluginWidget&) override;

    void layoutConfirmDialog (ConfirmDialogComponent&, juce::Label& question, juce::Button& button1,
                              juce::Button& button2) override;

    void drawFilledPathButton (juce::Graphics&, FilledPathButton&, juce::Rectangle<float> area,
                               bool isMouseOver, bool isDown) override;

    juce::Font getFont (PopupBubbleComponent&, PluginWidget&) override;
    int getAllowedPlacement (PopupBubbleComponent&, PluginWidget&) override;

    void drawBubble (juce::Graphics&, juce::BubbleComponent&, const juce::Point<float>& tip,
                     const juce::Rectangle<float>& body) override;
    void drawCallOutBoxBackground (juce::CallOutBox&, juce::Graphics&, const juce::Path&,
                                   juce::Image& cachedImage) override;
    int getCallOutBoxBorderSize (const juce::CallOutBox&) override;
    void drawCornerResizer (juce::Graphics&, int width, int height, bool isMouseOver,
                            bool isMouseDragging) override;
    void drawScrollbar (juce::Graphics&, juce::ScrollBar&, int x, int y, int width, int height,
                        bool isVertical, int thumbStart, int thumbSize, bool isMouseOver,
                        bool isMouseDown) override;
    int getDefaultScrollbarWidth() override { return 10; }

protected:
    /** A colour of a component, fainter while the component is disabled. */
    static juce::Colour getStateColour (const juce::Component&, int colourId);

private:
    int referenceHeight = 100;
    bool hiRes = false;
    juce::Typeface::Ptr regularTypeface, boldTypeface, italicTypeface;
    float headerFontRatio = 1.0f / 30.0f;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ZembraLookAndFeel)
};

} // namespace zembra
