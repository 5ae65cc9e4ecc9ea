// What the play head tells.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/render/Transport.h"

namespace render
{

Transport::Transport (double bpm, double sampleRateToUse)
    : tempo (static_cast<double> (static_cast<float> (bpm))),
      sampleRate (sampleRateToUse)
{
}

juce::Optional<juce::AudioPlayHead::PositionInfo> Transport::getPosition() const
{
    const auto seconds = static_cast<double> (timeInSamples) / sampleRate;
    PositionInfo info;
    info.setIsPlaying (true);
    info.setBpm (tempo);
    info.setTimeSignature (TimeSignature{ 4, 4 });
    info.setTimeInSamples (timeInSamples);
    info.setTimeInSeconds (seconds);
    info.setPpqPosition (seconds * tempo / 60.0);
    return info;
}

} // namespace render
