// The two roads between a parameter and its control, and what hangs on the mouse.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/PluginWidget.h"

#include "framework/gui/lookandfeel/TooltipBubbleLookAndFeel.h"
#include "framework/gui/widgets/PopupBubbleComponent.h"

namespace zembra
{

namespace
{

constexpr int bubbleDelayMs = 200;
constexpr float learnArrowSize = 14.0f;
constexpr int nothingPending = -1;

constexpr std::array<int, 3> bubbleColourIds{ juce::BubbleComponent::backgroundColourId,
                                              juce::BubbleComponent::outlineColourId,
                                              juce::TooltipWindow::textColourId };

/** Reads and clears a flag; a plain read while it isn't set, which is nearly always. */
bool takeFlag (std::atomic<bool>& flag)
{
    return flag.load (std::memory_order_acquire)
           && flag.exchange (false, std::memory_order_acq_rel);
}

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

PluginWidget::PluginWidget (PluginProcessor& processorToUse, const juce::String& paramId)
    : processor (processorToUse)
{
    auto* param = processor.getParamSet().getParam (paramId);
    jassert (param != nullptr);
    params.add (param);
    midiLearnable = param->isMidiLearnable();
    setName ("Widget");
    setTitle (param->getName());
}

PluginWidget::~PluginWidget()
{
    dismissLearnCallOut();
    stopListening();
}

void PluginWidget::stopListening()
{
    for (auto* param : params)
        param->removeListener (&ear);
}

// On the message thread these show what has changed, on any other they take a note.

void PluginWidget::Ear::paramChanged (Param* param, double plain, double normalised, int source)
{
    widget.PluginWidget::paramChanged (param, plain, normalised, source);
}

void PluginWidget::Ear::paramEnabledChanged (Param* param, bool disabled)
{
    widget.PluginWidget::paramEnabledChanged (param, disabled);
}

void PluginWidget::Ear::paramFrozenChanged (Param* param)
{
    widget.PluginWidget::paramFrozenChanged (param);
}

bool PluginWidget::isOnMessageThread() const
{
    // JUCE's question takes a mutex.
    return ! processor.isInRealtimeCall() && juce::MessageManager::existsAndIsCurrentThread();
}

void PluginWidget::paramChanged (Param* param, double plain, double, int source)
{
    // A control that the user moves must not be moved back by the poll.
    if (source != sourceEditor)
        needsUpdate.store (true, std::memory_order_release);

    if (isOnMessageThread())
        paramValueShown (param, plain);
    else
        valueShownPending.store (true, std::memory_order_release);
}

void PluginWidget::paramEnabledChanged (Param*, bool disabled)
{
    disabledPending.store (disabled ? 1 : 0, std::memory_order_release);

    if (isOnMessageThread())
        applyPendingMarks();
}

void PluginWidget::paramFrozenChanged (Param*)
{
    frozenPending.store (true, std::memory_order_release);

    if (isOnMessageThread())
        applyPendingMarks();
}

void PluginWidget::pollParam()
{
    if (takeFlag (needsUpdate))
        updateFromParam();

    if (takeFlag (valueShownPending))
        for (auto* param : params)
            paramValueShown (param, param->getValue());

    applyPendingMarks();
}

void PluginWidget::applyPendingMarks()
{
    if (disabledPending.load (std::memory_order_acquire) != nothingPending)
        setEnabled (disabledPending.exchange (nothingPending, std::memory_order_acq_rel) == 0);

    if (takeFlag (frozenPending))
        repaint();
}

void PluginWidget::beginGesture (Param& param)
{
    const auto& hostParams = processor.getParameters();

    if (auto* hostParam = hostParams[processor.getParamSet().indexOf (&param)])
        hostParam->beginChangeGesture();
}

void PluginWidget::endGesture (Param& param)
{
    const auto& hostParams = processor.getParameters();

    if (auto* hostParam = hostParams[processor.getParamSet().indexOf (&param)])
        hostParam->endChangeGesture();
}

void PluginWidget::editInOneStep (Param& param, double newValue)
{
    getUndoManager().beginNewTransaction();
    beginGesture (param);
    param.setValue (newValue, sourceEditor, &getUndoManager());
    endGesture (param);
}

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
