// Switching, fading and the block path of the filter pair.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/dsp/SwitchableFilter.h"

#include <algorithm>

namespace zembra
{

SwitchableFilter::SwitchableFilter()
    : scratch (static_cast<size_t> (capacity)),
      dryCopy (static_cast<size_t> (capacity))
{
}

void SwitchableFilter::add (std::unique_ptr<ZembraFilter> filter)
{
    filters.push_back (std::move (filter));
}

void SwitchableFilter::prepare (float sampleRate, int blockSize)
{
    for (auto& filter : filters)
        filter->prepare (sampleRate, blockSize);

    if (blockSize > capacity)
    {
        capacity = 2 * blockSize;
        scratch.resize (static_cast<size_t> (capacity));
        dryCopy.resize (static_cast<size_t> (capacity));
    }
}

void SwitchableFilter::reset()
{
    for (auto& filter : filters)
        filter->reset();
}

void SwitchableFilter::setActive (bool shouldBeActive) noexcept
{
    if (active == shouldBeActive)
        return;

    if (shouldBeActive)
        bypassed = false;

    active = shouldBeActive;
    fadeCount = 0;
    fading = true;
}

void SwitchableFilter::select (int index)
{
    if (current == index)
        return;

    previous = current;
    current = index;
    switchCount = 0;
    switching = true;

    if (auto* filter = getFilter (current))
        filter->reset();
}

ZembraFilter* SwitchableFilter::getFilter (int index) const
{
    return juce::isPositiveAndBelow (index, static_cast<int> (filters.size()))
               ? filters[static_cast<size_t> (index)].get()
               : nullptr;
}

float SwitchableFilter::crossFade (float input, float currentOutput)
{
    const auto from = getFilter (previous)->process (input);
    const auto y = (currentOutput - from) * static_cast<float> (switchCount) * switchStep + from;
    switching = ++switchCount < fadeLength;
    return y;
}

void SwitchableFilter::countFade (int numSamples) noexcept
{
    fadeCount += numSamples;

    if (fadeCount < fadeLength)
        return;

    fadeCount = 0;
    fading = false;
    bypassed = bypassed || ! active;
}

void SwitchableFilter::skipFade (int numSamples) noexcept
{
    for (; fading && numSamples > 0; --numSamples)
    {
        fade.advance (active ? 1.0f : 0.0f);
        countFade (1);
    }
}

void SwitchableFilter::process (float* samples, int numSamples)
{
    auto* filter = getFilter (current);

    if (bypassed || filter == nullptr || numSamples <= 0)
        return;

    if (numSamples > capacity)
    {
        capacity = 2 * numSamples;
        scratch.resize (static_cast<size_t> (capacity));
        dryCopy.resize (static_cast<size_t> (capacity));
    }

    if (fading)
        std::copy_n (samples, numSamples, dryCopy.begin());

    if (switching)
        crossFadeBlock (samples, numSamples);
    else
        filter->process (samples, numSamples);

    if (fading)
        fadeBlock (samples, numSamples);
}

void SwitchableFilter::crossFadeBlock (float* samples, int numSamples)
{
    std::copy_n (samples, numSamples, scratch.begin());
    getFilter (previous)->process (scratch.data(), numSamples);
    getFilter (current)->process (samples, numSamples);

    // Blends with the unfiltered signal, not with the filter that is being left: this path runs only
    // while the whole filter fades out to just that signal.
    for (int i = 0; i < numSamples; ++i)
    {
        const auto dry = dryCopy[static_cast<size_t> (i)];
        samples[i] = static_cast<float> (switchCount++) * switchStep * (samples[i] - dry) + dry;
    }

    if (switchCount >= fadeLength)
    {
        switchCount = 0;
        switching = false;
    }
}

void SwitchableFilter::fadeBlock (float* samples, int numSamples)
{
    const auto target = active ? 1.0f : 0.0f;
    auto gain = fade.getGain();
    const auto step = (target - gain) / static_cast<float> (fadeLength);

    for (int i = 0; i < numSamples; ++i)
    {
        const auto dry = dryCopy[static_cast<size_t> (i)];
        samples[i] = samples[i] * gain + dry * (1.0f - gain);
        gain = i < fadeLength - 1 ? gain + step : target;
    }

    fade.setGain (gain);
    countFade (numSamples);
}

} // namespace zembra
