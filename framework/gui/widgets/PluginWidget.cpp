// The two roads between a parameter and its control.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/PluginWidget.h"

#include "framework/gui/widgets/PopupBubbleComponent.h"

namespace zembra
{

namespace
{

constexpr int nothingPending = -1;

/** Reads and clears a flag; a plain read while it isn't set, which is nearly always. */
bool takeFlag (std::atomic<bool>& flag)
{
    return flag.load (std::memory_order_acquire)
           && flag.exchange (false, std::memory_order_acq_rel);
}

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

} // namespace zembra
