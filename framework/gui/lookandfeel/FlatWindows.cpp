// Windows, tabs, text editors and table headers of the flat look.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/ColourIds.h"
#include "framework/gui/lookandfeel/FittedText.h"
#include "framework/gui/lookandfeel/ZembraFlatLookAndFeel.h"

namespace zembra
{

namespace
{

/** A title bar's button: a thin shape that lights up under the mouse. */
class TitleBarButton final : public juce::Button
{
public:
    TitleBarButton (const juce::String& name, juce::Path shapeToDraw)
        : Button (name),
          shape (std::move (shapeToDraw))
    {
        setTitle (name);
    }

    void paintButton (juce::Graphics& g, bool isMouseOver, bool isDown) override
    {
        const auto area = getLocalBounds().toFloat();
        const auto side = 0.42f * juce::jmin (area.getWidth(), area.getHeight());
        auto colour = findColour (juce::DocumentWindow::textColourId);

        if (isMouseOver || isDown)
            colour = colour.brighter (isDown ? 1.0f : 0.6f);

        g.setColour (colour);
        g.strokePath (shape, juce::PathStrokeType (1.4f),
                      juce::AffineTransform::scale (side).translated (
                          area.getCentreX() - 0.5f * side, area.getCentreY() - 0.5f * side));
    }

private:
    const juce::Path shape;
};

juce::Path makeTitleBarShape (int buttonType)
{
    juce::Path shape;

    if (buttonType == juce::DocumentWindow::closeButton)
    {
        shape.startNewSubPath (0.0f, 0.0f);
        shape.lineTo (1.0f, 1.0f);
        shape.startNewSubPath (1.0f, 0.0f);
        shape.lineTo (0.0f, 1.0f);
    }
    else if (buttonType == juce::DocumentWindow::minimiseButton)
    {
        shape.startNewSubPath (0.0f, 0.5f);
        shape.lineTo (1.0f, 0.5f);
    }
    else
    {
        shape.addRectangle (0.0f, 0.0f, 1.0f, 1.0f);
    }

    return shape;
}

} // namespace

juce::Button* ZembraFlatLookAndFeel::createDocumentWindowButton (int buttonType)
{
    const auto* const name = buttonType == juce::DocumentWindow::closeButton      ? "close"
                             : buttonType == juce::DocumentWindow::minimiseButton ? "minimise"
                                                                                  : "maximise";
    return new TitleBarButton (name, makeTitleBarShape (buttonType));
}

void ZembraFlatLookAndFeel::drawDocumentWindowTitleBar (juce::DocumentWindow& window,
                                                        juce::Graphics& g, int width, int height,
                                                        int titleX, int titleWidth,
                                                        const juce::Image*, bool)
{
    g.fillAll (window.getBackgroundColour().darker (0.35f));
    g.setColour (findColour (separatorColourId).brighter (0.1f));
    g.fillRect (0.0f, static_cast<float> (height) - getHairline(), static_cast<float> (width),
                getHairline());

    const auto alpha = window.isActiveWindow() ? 1.0f : 0.6f;
    const auto area = juce::Rectangle<int> (titleX, 0, titleWidth, height).toFloat();
    g.setColour (
        window.findColour (juce::DocumentWindow::textColourId).withMultipliedAlpha (alpha));
    drawTextThatFits (g, window.getName(), area.reduced (4.0f, 0.0f),
                      juce::Font (0.65f * static_cast<float> (height)),
                      juce::Justification::centred);
}

void ZembraFlatLookAndFeel::drawTabButton (juce::TabBarButton& button, juce::Graphics& g,
                                           bool isMouseOver, bool isDown)
{
    const auto area = button.getActiveArea().toFloat();
    const auto isFront = button.isFrontTab();
    auto colour = button.findColour (isFront ? juce::TabbedButtonBar::frontTextColourId
                                             : juce::TabbedButtonBar::tabTextColourId);

    if (! isFront && (isMouseOver || isDown))
        colour = colour.brighter (0.4f);

    g.setColour (colour);
    drawTextThatFits (g, button.getButtonText().trim(), area.reduced (4.0f, 0.0f),
                      juce::Font (0.5f * area.getHeight()), juce::Justification::centred);

    if (isFront)
    {
        g.setColour (button.findColour (accentColourId));
        g.fillRect (area.withTop (area.getBottom() - 2.0f));
    }
}

void ZembraFlatLookAndFeel::drawTabAreaBehindFrontButton (juce::TabbedButtonBar& bar,
                                                          juce::Graphics& g, int width, int height)
{
    g.setColour (bar.findColour (juce::TabbedButtonBar::tabOutlineColourId));
    g.fillRect (0.0f, static_cast<float> (height) - getHairline(), static_cast<float> (width),
                getHairline());
}

int ZembraFlatLookAndFeel::getTabButtonBestWidth (juce::TabBarButton& button, int tabDepth)
{
    const juce::Font font (0.5f * static_cast<float> (tabDepth));
    return font.getStringWidth (button.getButtonText().trim()) + tabDepth;
}

void ZembraFlatLookAndFeel::drawTextEditorOutline (juce::Graphics& g, int width, int height,
                                                   juce::TextEditor& editor)
{
    const auto hasFocus = editor.hasKeyboardFocus (true) && ! editor.isReadOnly();
    g.setColour (editor.findColour (hasFocus ? juce::TextEditor::focusedOutlineColourId
                                             : juce::TextEditor::outlineColourId));
    g.drawRect (0, 0, width, height);
}

void ZembraFlatLookAndFeel::drawTableHeaderBackground (juce::Graphics& g,
                                                       juce::TableHeaderComponent& header)
{
    g.fillAll (header.findColour (juce::TableHeaderComponent::backgroundColourId));
    g.setColour (header.findColour (juce::TableHeaderComponent::outlineColourId));
    g.fillRect (header.getLocalBounds().removeFromBottom (1));

    for (int i = header.getNumColumns (true); --i >= 0;)
        g.fillRect (header.getColumnPosition (i).removeFromRight (1));
}

void ZembraFlatLookAndFeel::drawTableHeaderColumn (juce::Graphics& g,
                                                   juce::TableHeaderComponent& header,
                                                   const juce::String& columnName, int, int width,
                                                   int height, bool isMouseOver, bool isDown,
                                                   int columnFlags)
{
    if (isMouseOver || isDown)
        g.fillAll (header.findColour (juce::TableHeaderComponent::highlightColourId));

    auto area = juce::Rectangle<int> (width, height).toFloat().reduced (5.0f, 0.0f);
    g.setColour (header.findColour (juce::TableHeaderComponent::textColourId));
    constexpr int sorted =
        juce::TableHeaderComponent::sortedForwards | juce::TableHeaderComponent::sortedBackwards;

    if ((columnFlags & sorted) != 0)
    {
        const auto box =
            area.removeFromRight (0.7f * area.getHeight())
                .withSizeKeepingCentre (0.35f * area.getHeight(), 0.25f * area.getHeight());
        const auto isForwards = (columnFlags & juce::TableHeaderComponent::sortedForwards) != 0;
        const auto base = isForwards ? box.getBottom() : box.getY();
        const auto tip = isForwards ? box.getY() : box.getBottom();
        juce::Path arrow;
        arrow.addTriangle (box.getX(), base, box.getRight(), base, box.getCentreX(), tip);
        g.fillPath (arrow);
    }

    drawTextThatFits (g, columnName, area, juce::Font (0.55f * static_cast<float> (height)),
                      juce::Justification::centredLeft);
}

} // namespace zembra
