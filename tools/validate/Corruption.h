// States that no plug-in has written.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

namespace validate
{

/** Spoils a state at random: cut short, bytes changed, a part doubled or left out, numbers replaced by
    others and by what isn't a number, or nothing but garbage.
*/
juce::MemoryBlock corrupt (const juce::MemoryBlock& state, juce::Random& random);

} // namespace validate
