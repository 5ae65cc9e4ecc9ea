// Ending early and tidily when the user or the system says so.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace render
{

/** From here on, the first SIGINT, SIGTERM or SIGHUP is noted instead of ending the process, so that
    checkForInterrupt() can; a second one ends it. Running into a limit of file size becomes a plain
    write error.
*/
void catchInterrupts();

/** @throws Failure  if a signal has come */
void checkForInterrupt();

} // namespace render
