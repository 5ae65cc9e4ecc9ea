// Doing, undoing and joining of parameter edits.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/ModifyParamAction.h"

namespace zembra
{

Param::ModifyParamAction::ModifyParamAction (Param& paramToUse, double newValueToUse,
                                             double oldValueToUse)
    : param (paramToUse),
      newValue (newValueToUse),
      oldValue (oldValueToUse)
{
}

bool Param::ModifyParamAction::perform()
{
    param.setValue (newValue, sourceUndo);
    return true;
}

bool Param::ModifyParamAction::undo()
{
    param.setValue (oldValue, sourceUndo);
    return true;
}

juce::UndoableAction* Param::ModifyParamAction::createCoalescedAction (juce::UndoableAction* next)
{
    if (auto* later = dynamic_cast<ModifyParamAction*> (next))
        if (&later->param == &param)
            return new ModifyParamAction (param, later->newValue, oldValue);

    return nullptr;
}

} // namespace zembra
