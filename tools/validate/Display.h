// Whether there is a screen to open editors on.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace validate
{

/** True if native windows can be made. From then on an error of the display is no reason to end the
    process, as in a host's toolkit. [message thread]
*/
bool hasDisplay();

} // namespace validate
