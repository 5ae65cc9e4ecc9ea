// What of a widget hangs on the mouse and the keyboard: bubble, learn panel, marks.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/TooltipBubbleLookAndFeel.h"
#include "framework/gui/widgets/PluginWidget.h"
#include "framework/gui/widgets/PopupBubbleComponent.h"

namespace zembra
{

namespace
{

constexpr int bubbleDelayMs = 200;
constexpr float learnArrowSize = 14.0f;

constexpr std::array<int, 3> bubbleColourIds{ juce::BubbleComponent::backgroundColourId,
                                              juce::BubbleComponent::outlineColourId,
                                              juce::TooltipWindow::textColourId };

/** Shows the learn panel in a call-out. The call-out box deletes its content a while after it was
    closed, when the panel's parameter may be gone; so the widget keeps the panel itself.
*/
class LearnPanelHolder final : public juce::Component
{
public:
    explicit LearnPanelHolder (juce::Component& panel)
    {
        setSize (panel.getWidth(), panel.getHeight());
        addAndMakeVisible (panel);
    }

private:
    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (LearnPanelHolder)
};

} // namespace

void PluginWidget::setMidiLearnMode (bool shouldBeOn)
{
    midiLearnMode = shouldBeOn;
    repaint();
}

PluginWidget::ZembraLookAndFeelMethods* PluginWidget::getMethods() const
{
    return dynamic_cast<ZembraLookAndFeelMethods*> (&getLookAndFeel());
}

void PluginWidget::mouseEnter (const juce::MouseEvent&)
{
    repaint();

    if (showsValueBubble && getTooltip().isNotEmpty() && isEnabled())
        showBubble();
}

void PluginWidget::mouseExit (const juce::MouseEvent&)
{
    dismissBubble();
    repaint();
}

void PluginWidget::mouseDown (const juce::MouseEvent&)
{
    dismissBubble();
    focusCameByKeyboard = false;

    if (midiLearnMode && midiLearnable)
        openLearnPanel();
}

void PluginWidget::mouseWheelMove (const juce::MouseEvent&, const juce::MouseWheelDetails&)
{
    if (showsValueBubble && getTooltip().isNotEmpty() && bubble != nullptr)
        bubble->setText (getTooltip());
}

void PluginWidget::showBubble()
{
    if (bubble == nullptr)
    {
        if (bubbleLookAndFeel == nullptr)
        {
            bubbleLookAndFeel = std::make_unique<TooltipBubbleLookAndFeel>();
            copyBubbleColours();
        }

        bubble = std::make_unique<PopupBubbleComponent> (*this);
        bubble->setLookAndFeel (bubbleLookAndFeel.get());
        bubble->addMouseListener (this, true);
        bubble->addToDesktop (juce::ComponentPeer::windowIsTemporary
                              | juce::ComponentPeer::windowIgnoresKeyPresses);
        bubble->arm (true, bubbleDelayMs);
    }

    bubble->setText (getTooltip());
}

void PluginWidget::dismissBubble() { bubble.reset(); }

void PluginWidget::lookAndFeelChanged()
{
    if (bubbleLookAndFeel != nullptr)
        copyBubbleColours();
}

void PluginWidget::copyBubbleColours()
{
    for (const auto id : bubbleColourIds)
        bubbleLookAndFeel->setColour (id, findColour (id));
}

void PluginWidget::openLearnPanel()
{
    dismissLearnCallOut();
    learnPanel = createLearnPanel();

    if (learnPanel == nullptr)
        return;

    auto* const methods = getMethods();
    const auto part = [this] (float share, int least)
    { return juce::jmax (juce::roundToInt (share * static_cast<float> (getWidth())), least); };
    learnPanel->setSize (
        methods != nullptr ? methods->getMidiLearnPanelWidth (*this) : part (0.1f, 80),
        methods != nullptr ? methods->getMidiLearnPanelHeight (*this) : part (0.025f, 20));

    auto* const editor = findParentComponentOfClass<juce::AudioProcessorEditor>();
    const auto area =
        editor != nullptr ? editor->getLocalArea (this, getLocalBounds()) : getScreenBounds();
    auto& box = juce::CallOutBox::launchAsynchronously (
        std::make_unique<LearnPanelHolder> (*learnPanel), area, editor);
    box.setArrowSize (learnArrowSize);
    box.addComponentListener (this);
    learnCallOut = &box;
    midiLearnPanelOpen = true;
    processor.startLearning (getParam().getId());
    repaint();
}

void PluginWidget::dismissLearnCallOut()
{
    if (auto* const box = learnCallOut.getComponent())
    {
        box->removeComponentListener (this);
        box->exitModalState (0);
        learnPanelClosed();
    }
}

void PluginWidget::componentBeingDeleted (juce::Component&) { learnPanelClosed(); }

void PluginWidget::learnPanelClosed()
{
    processor.stopLearning();
    learnCallOut = nullptr;
    learnPanel.reset();
    midiLearnPanelOpen = false;
    repaint();
}

void PluginWidget::paint (juce::Graphics& g)
{
    if (! (midiLearnMode && midiLearnable))
        return;

    if (auto* const methods = getMethods())
        methods->drawMidiLearnOverlay (g, *this, isMouseOver (true), midiLearnPanelOpen);
}

void PluginWidget::paintOverChildren (juce::Graphics& g)
{
    if (focusCameByKeyboard && hasKeyboardFocus (true))
        if (auto* const methods = getMethods())
            methods->drawKeyboardFocus (g, *this);
}

void PluginWidget::focusOfChildComponentChanged (FocusChangeType cause)
{
    const auto showsFocus = hasKeyboardFocus (true) && cause != focusChangedByMouseClick;

    // Within a grid the ring moves from button to button.
    if (showsFocus || focusCameByKeyboard)
        repaint();

    focusCameByKeyboard = showsFocus;
}

juce::Rectangle<int> PluginWidget::getFocusedChildBounds() const
{
    for (const auto* child : getChildren())
        if (child->hasKeyboardFocus (true))
            return child->getBounds();

    return {};
}

} // namespace zembra
