// The flat look: buttons, sliders, menus, tabs and windows without gloss.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/gui/lookandfeel/ZembraLookAndFeel.h"

namespace zembra
{

class ZembraFlatLookAndFeel : public ZembraLookAndFeel
{
public:
    ZembraFlatLookAndFeel();

    void drawButtonBackground (juce::Graphics&, juce::Button&, const juce::Colour& background,
                               bool isMouseOver, bool isDown) override;
    void drawButtonText (juce::Graphics&, juce::TextButton&, bool isMouseOver,
                         bool isDown) override;
    juce::Font getTextButtonFont (juce::TextButton&, int buttonHeight) override;
    void drawTickBox (juce::Graphics&, juce::Component&, float x, float y, float w, float h,
                      bool ticked, bool isEnabled, bool isMouseOver, bool isDown) override;

    /** The text box of a rotary slider stands in the middle of its ring. */
    juce::Slider::SliderLayout getSliderLayout (juce::Slider&) override;
    juce::Label* createSliderTextBox (juce::Slider&) override;
    int getSliderThumbRadius (juce::Slider&) override;
    void drawLinearSlider (juce::Graphics&, int x, int y, int width, int height, float sliderPos,
                           float minSliderPos, float maxSliderPos, juce::Slider::SliderStyle,
                           juce::Slider&) override;

    void drawPopupMenuBackground (juce::Graphics&, int width, int height) override;
    void drawPopupMenuItem (juce::Graphics&, const juce::Rectangle<int>& area, bool isSeparator,
                            bool isActive, bool isHighlighted, bool isTicked, bool hasSubMenu,
                            const juce::String& text, const juce::String& shortcutText,
                            const juce::Drawable* icon, const juce::Colour* textColour) override;
    void drawPopupMenuUpDownArrow (juce::Graphics&, int width, int height,
                                   bool isScrollUpArrow) override;
    int getMenuWindowFlags() override { return 0; }

    void drawTabButton (juce::TabBarButton&, juce::Graphics&, bool isMouseOver,
                        bool isDown) override;
    void drawTabAreaBehindFrontButton (juce::TabbedButtonBar&, juce::Graphics&, int width,
                                       int height) override;
    int getTabButtonBestWidth (juce::TabBarButton&, int tabDepth) override;
    int getTabButtonOverlap (int) override { return 0; }

    void drawDocumentWindowTitleBar (juce::DocumentWindow&, juce::Graphics&, int width, int height,
                                     int titleX, int titleWidth, const juce::Image* icon,
                                     bool titleOnLeft) override;
    juce::Button* createDocumentWindowButton (int buttonType) override;
    void drawTextEditorOutline (juce::Graphics&, int width, int height, juce::TextEditor&) override;
    void drawTableHeaderBackground (juce::Graphics&, juce::TableHeaderComponent&) override;
    void drawTableHeaderColumn (juce::Graphics&, juce::TableHeaderComponent&,
                                const juce::String& columnName, int columnId, int width, int height,
                                bool isMouseOver, bool isDown, int columnFlags) override;

protected:
    /** The button's outline: rounded corners, square where it joins a neighbour. */
    static juce::Path getButtonShape (const juce::Button&, float cornerSize);

private:
    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ZembraFlatLookAndFeel)
};

} // namespace zembra
