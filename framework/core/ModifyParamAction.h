// One undoable edit of a parameter.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/Param.h"

namespace zembra
{

/** An edit as the undo manager keeps it. Edits of one parameter inside one transaction coalesce, so
    that a whole drag is one step. [message thread]
*/
class Param::ModifyParamAction final : public juce::UndoableAction
{
public:
    /** @param newValueToUse  the plain value as asked for, before clamping
        @param oldValueToUse  the plain value before the edit
    */
    ModifyParamAction (Param& paramToUse, double newValueToUse, double oldValueToUse);

    bool perform() override;
    bool undo() override;
    juce::UndoableAction* createCoalescedAction (juce::UndoableAction* next) override;

private:
    Param& param;
    const double newValue, oldValue;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ModifyParamAction)
};

} // namespace zembra
