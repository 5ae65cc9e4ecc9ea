// The values of all parameters of an instance.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_audio_processors/juce_audio_processors.h>

#include <vector>

namespace validate
{

using Parameters = std::vector<juce::AudioProcessorParameter*>;
using Values = std::vector<float>;

constexpr int longestText = 1024;

/** The parameters that a host automates, without the one that bypasses everything. */
Parameters getMovable (const juce::AudioPluginInstance& instance);

Values readValues (const juce::AudioPluginInstance& instance);

/** Sends a value to each parameter. A plug-in may move others along, so that readValues() needn't give
    the same.
*/
void sendValues (const juce::AudioPluginInstance& instance, const Values& values);

/** The number of values that each parameter has, 0 if it has more than a few. A host of VST 2 isn't
    told, so the texts are counted. Moves the parameters.
*/
std::vector<int> countSteps (juce::AudioPluginInstance& instance);

/** The nearest of this many steps, or the value itself if there are none. */
float snap (float value, int numSteps);

/** Random values, now and then at an end of the range. */
Values makeRandomValues (const std::vector<int>& steps, juce::Random& random);

/** Whether a value has come back. Near an end a skewed scale may have so little of the parameter in a
    stretch of its travel that a plug-in takes a move within it for none.
*/
bool isNear (float value, float wanted);

/** "name: 0.1 instead of 0.2" for the first one that isn't near, or nothing. */
juce::String findDifference (const juce::AudioPluginInstance& instance, const Values& wanted);

/** Whatever a host's arithmetic may turn a value into. */
constexpr float hostTolerance = 1e-3f;

} // namespace validate
