// Where every plug-in format begins: makes one instance.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/VorloProcessor.h"

juce::AudioProcessor* JUCE_CALLTYPE createPluginFilter();
juce::AudioProcessor* JUCE_CALLTYPE createPluginFilter() { return new VorloProcessor(); }
