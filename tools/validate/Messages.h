// Runs the message loop for a while in the middle of a check.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace validate
{

/** Dispatches messages and timers, for this long at least. [message thread] */
void runMessages (int milliseconds);

} // namespace validate
