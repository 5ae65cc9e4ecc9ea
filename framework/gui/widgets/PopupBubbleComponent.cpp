// Timing, place and drawing of a value bubble.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/PopupBubbleComponent.h"

#include "framework/gui/lookandfeel/ZembraLookAndFeel.h"
#include "framework/gui/widgets/PluginWidget.h"

namespace zembra
{

namespace
{

constexpr int distanceFromWidget = 10;
constexpr int sideMargins = 18;

} // namespace

PopupBubbleComponent::PopupBubbleComponent (PluginWidget& widgetToUse) : widget (widgetToUse)
{
    setAlwaysOnTop (true);

    if (auto* const look = dynamic_cast<ZembraLookAndFeel*> (&widget.getLookAndFeel()))
        setLookAndFeel (look);
}

PopupBubbleComponent::~PopupBubbleComponent() { setLookAndFeel (nullptr); }

void PopupBubbleComponent::arm (bool shouldBeVisible, int milliseconds)
{
    visibleWhenFired = shouldBeVisible;
    startTimer (milliseconds);
}

void PopupBubbleComponent::setText (const juce::String& newText)
{
    text = newText;
    setPosition (&widget, distanceFromWidget);
    repaint();
}

void PopupBubbleComponent::lookAndFeelChanged() { askLookAndFeel(); }

void PopupBubbleComponent::visibilityChanged()
{
    isShowing = isVisible();

    if (isShowing)
        askLookAndFeel();
}

void PopupBubbleComponent::askLookAndFeel()
{
    if (auto* const methods = dynamic_cast<ZembraLookAndFeelMethods*> (&getLookAndFeel()))
    {
        font = methods->getFont (*this, widget);
        setAllowedPlacement (methods->getAllowedPlacement (*this, widget));
    }
}

void PopupBubbleComponent::getContentSize (int& width, int& height)
{
    width = isShowing ? static_cast<int> (std::ceil (font.getStringWidthFloat (text))) + sideMargins
                      : 0;
    height = isShowing ? static_cast<int> (font.getHeight() * 1.6f) : 0;
}

void PopupBubbleComponent::paintContent (juce::Graphics& g, int width, int height)
{
    if (! isShowing)
        return;

    g.setFont (font);
    g.setColour (widget.findColour (juce::TooltipWindow::textColourId));
    g.drawText (text, 0, 0, width, height, juce::Justification::centred, false);
}

void PopupBubbleComponent::timerCallback()
{
    stopTimer();
    setVisible (visibleWhenFired);
    setText (text);
}

} // namespace zembra
