// The moves of the random transport.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/soak/RandomTransport.h"

#include <iterator>
#include <limits>

namespace soak
{

void RandomTransport::advance (int numSamples, double sampleRate) noexcept
{
    if (random.nextInt (50) == 0)
        changePlan();

    if (isPlaying)
        samples += numSamples;

    position = isSilent                   ? juce::nullopt
               : manners == Manners::sane ? juce::makeOptional (getSanePosition (sampleRate))
                                          : juce::makeOptional (getWildPosition());
}

void RandomTransport::changePlan() noexcept
{
    isPlaying = random.nextInt (4) != 0;
    isLooping = random.nextBool();
    isSilent = random.nextInt (10) == 0;
    bpm = random.nextBool() ? 40.0 + 200.0 * random.nextDouble() : bpm;
    signature = { 1 + random.nextInt (12), 1 << random.nextInt (5) };

    if (random.nextBool())
        samples = random.nextInt (100'000'000);
}

RandomTransport::PositionInfo RandomTransport::getSanePosition (double sampleRate) const noexcept
{
    const auto seconds = static_cast<double> (samples) / sampleRate;
    PositionInfo info;
    info.setBpm (bpm);
    info.setTimeSignature (signature);
    info.setTimeInSamples (samples);
    info.setTimeInSeconds (seconds);
    info.setPpqPosition (seconds * bpm / 60.0);
    info.setIsPlaying (isPlaying);
    info.setIsLooping (isLooping);
    return info;
}

RandomTransport::PositionInfo RandomTransport::getWildPosition() noexcept
{
    constexpr int numbers[] = {
        0, 1, 4, -3, 1'000'000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()
    };
    const auto pick = [&] { return numbers[random.nextInt (std::size (numbers))]; };
    constexpr auto last = std::numeric_limits<juce::int64>::max();
    PositionInfo info;

    if (random.nextInt (4) != 0)
        info.setBpm (getWildNumber());
    if (random.nextInt (4) != 0)
        info.setTimeSignature (TimeSignature{ pick(), pick() });
    if (random.nextInt (4) != 0)
        info.setPpqPosition (getWildNumber());
    if (random.nextInt (4) != 0)
        info.setTimeInSamples (random.nextBool() ? random.nextInt64()
                                                 : (random.nextBool() ? last : -last - 1));

    info.setIsPlaying (random.nextBool());
    info.setIsLooping (random.nextBool());
    return info;
}

double RandomTransport::getWildNumber() noexcept
{
    constexpr auto inf = std::numeric_limits<double>::infinity();
    constexpr double numbers[] = {
        0.0,   -0.0,  -1.0, 1e-300, 1e9,
        1e300, -1e18, inf,  -inf,   std::numeric_limits<double>::quiet_NaN(),
        999.5, 120.0, -7.25
    };
    return numbers[random.nextInt (std::size (numbers))];
}

} // namespace soak
