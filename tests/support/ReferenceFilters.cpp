// The two ladder filters of the reference engine and the per-channel switch between them.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ReferenceFilters.h"

#include <algorithm>
#include <cmath>

namespace reference
{

static constexpr int fadeLength = 256;
static constexpr float switchStep = 1.0f / 256.0f;

void LadderFilter::prepare (float newSampleRate)
{
    if (newSampleRate != sampleRate)
    {
        sampleRate = newSampleRate;
        nyquist = newSampleRate / 2.0f;
        invSampleRate = 1.0f / newSampleRate;
        computeCoefficients();
    }

    reset();
}

void LadderFilter::setCutoff (float frequency)
{
    if (frequency == cutoff)
        return;

    targetCutoff = frequency;
    computeCoefficients();
}

void LadderFilter::computeCoefficients()
{
    cutoff = std::min (targetCutoff, nyquist);
    const auto t = 2.0f * std::tan (invSampleRate * 3.1415927f * cutoff);
    g = t / (t + 2.0f);
    b = (t - 2.0f) / (t + 2.0f);
}

void LadderFilter::setResonance (float newResonance)
{
    if (newResonance == resonance)
        return;

    resonance = newResonance;
    feedback = newResonance * 3.99999f;
    inputGain = 1.0f / (feedback + 1.0f);
    outputGain = feedback + 1.0f;
}

float LowPassFilter::process (float x)
{
    const auto v = x * inputGain;
    const auto estimateScale = 1.0f / (std::pow (g, 4.0f) * feedback + 1.0f);
    const auto y = ((((v + s1) * g + s2) * g + s3) * g + s4) * estimateScale;

    const auto u1 = (v - y * feedback) * g;
    const auto w1 = u1 + s1;
    s1 = softClip (u1 - b * w1);

    const auto u2 = g * w1;
    const auto w2 = s2 + u2;
    s2 = u2 - b * w2;

    const auto u3 = g * w2;
    const auto w3 = u3 + s3;
    s3 = softClip (u3 - b * w3);

    s4 = g * w3 - b * y;
    return y * outputGain;
}

float HiPassFilter::process (float x)
{
    const auto h = 1.0f - g;
    const auto v = x * inputGain;
    const auto y =
        ((((h * v - s1) * h - s2) * h - s3) * h - s4) / (h * h * h * h * feedback + 1.0f);
    auto e = v - feedback * y;

    const auto u1 = g * e;
    const auto l1 = u1 + s1;
    s1 = softClip (u1 - b * l1);
    e = e - l1;

    const auto u2 = g * e;
    const auto l2 = u2 + s2;
    s2 = u2 - b * l2;
    e = e - l2;

    const auto u3 = g * e;
    const auto l3 = u3 + s3;
    s3 = softClip (u3 - b * l3);
    e = e - l3;

    const auto u4 = g * e;
    s4 = u4 - (u4 + s4) * b;
    return y * outputGain;
}

SwitchableFilter::SwitchableFilter()
    : filters{ std::make_unique<LowPassFilter>(), std::make_unique<HiPassFilter>() }
{
}

void SwitchableFilter::prepare (float sampleRate)
{
    for (auto& filter : filters)
        filter->prepare (sampleRate);
}

void SwitchableFilter::reset()
{
    for (auto& filter : filters)
        filter->reset();
}

void SwitchableFilter::select (int type, bool enabled)
{
    if (active != enabled)
    {
        if (enabled)
            bypassed = false;

        active = enabled;
        fadeCount = 0;
        fading = true;
    }

    if (current != type)
    {
        previous = current;
        current = type;
        switchCount = 0;
        switching = true;
        selected().reset();
    }
}

void SwitchableFilter::countFade (int n)
{
    fadeCount += n;

    if (fadeCount < fadeLength)
        return;

    fadeCount = 0;
    fading = false;

    if (! active)
        bypassed = true;
}

// The fade advances here but is not heard: switching on is abrupt.
float SwitchableFilter::processSample (float x)
{
    float out = 0.0f;

    if (switching)
    {
        const auto a = filters[static_cast<size_t> (previous)]->process (x);
        const auto c = selected().process (x);
        out = (c - a) * static_cast<float> (switchCount) * switchStep + a;
        switching = ++switchCount < fadeLength;
    }
    else
    {
        out = selected().process (x);
    }

    if (fading)
    {
        fade.nextStep (fadeTarget());
        countFade (1);
    }

    return out;
}

void SwitchableFilter::processBlock (float* samples, int n)
{
    if (bypassed)
        return;

    if (fading)
        dryCopy.assign (samples, samples + n);

    std::vector<float> scratch (samples, samples + n);

    for (int i = 0; i < n; ++i)
        samples[i] = selected().process (samples[i]);

    if (switching)
    {
        for (auto& sample : scratch)
            filters[static_cast<size_t> (previous)]->process (sample);

        blendSwitch (samples, n);
    }

    if (fading)
    {
        blendFade (samples, n);
        countFade (n);
    }
}

// Fades the new filter in from the dry signal; the left filter runs but is not heard.
void SwitchableFilter::blendSwitch (float* samples, int n)
{
    for (int i = 0; i < n; ++i)
    {
        const auto dry = dryCopy[static_cast<size_t> (i)];
        const auto share = static_cast<float> (switchCount++) * switchStep;
        samples[i] = share * (samples[i] - dry) + dry;
    }

    if (switchCount >= fadeLength)
    {
        switchCount = 0;
        switching = false;
    }
}

// A block ramp: linear towards the target over 256 samples, what is left of the block at it.
void SwitchableFilter::blendFade (float* samples, int n)
{
    const auto target = fadeTarget();
    const auto increment = (target - fade.gain) / static_cast<float> (fade.steps);
    const bool arrives = n >= fade.steps || std::abs (fade.gain - target) <= 1.0e-5f;
    auto gain = fade.gain;

    for (int i = 0; i < n; ++i)
    {
        if (i == fade.steps)
            gain = target;

        samples[i] = samples[i] * gain + dryCopy[static_cast<size_t> (i)] * (1.0f - gain);

        if (i < fade.steps)
            gain += increment;
    }

    fade.gain = arrives ? target : gain;
}

} // namespace reference
