// Who changed a parameter: a number that travels with each change.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zembra
{

/** The origin of a parameter change. Only edits (`sourceEditor`, `sourceLinked`) can be undoable. */
enum ChangeSource : int
{
    sourceHost = 0,   ///< the host's automation
    sourceEditor = 1, ///< a control of the editor
    sourceMidi = 2,   ///< a MIDI controller
    sourceUndo = 3,   ///< undo or redo
    sourceState = 4,  ///< restoring a state or preset; also a new listener's first call
    sourceLinked = 5  ///< another parameter that this one follows
};

} // namespace zembra
