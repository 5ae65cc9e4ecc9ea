// Several filters of one channel, of which one is heard, with cross-fades on a change.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/dsp/GainRamp.h"
#include "framework/dsp/ZembraFilter.h"

#include <memory>
#include <vector>

namespace zembra
{

/** Holds the filters, fades over 256 samples when another is selected, and fades the whole to the
    unfiltered signal when it is switched off.

    The fade of the on/off switch works on blocks only. The per-sample path moves the fade on without
    applying it, so that switching on is abrupt: this is how the effect is meant to answer.
    [audio thread]
*/
class SwitchableFilter final
{
public:
    SwitchableFilter();

    /** Takes ownership; the first filter added is number 0 and selected. */
    void add (std::unique_ptr<ZembraFilter> filter);

    void prepare (float sampleRate, int blockSize);
    void reset();

    /** Switches the filter on or off; nothing if it is so already. */
    void setActive (bool shouldBeActive) noexcept;

    /** Selects a filter, which starts from a cleared state; nothing if it is selected already. */
    void select (int index);

    /** Filters a block in place; once faded out, leaves it as it is. Allocates only for a block
        longer than any announced one.
    */
    void process (float* samples, int numSamples);

    /** Filters one sample through the selected filter, which the caller hands in by its true type so
        that the call can be inlined.
    */
    template <typename Filter>
    float process (float x, Filter& currentFilter)
    {
        if (! switching && ! fading)
            return currentFilter.process (x);

        const auto y =
            switching ? crossFade (x, currentFilter.process (x)) : currentFilter.process (x);

        skipFade (1);
        return y;
    }

    /** Does for the fade what `numSamples` calls of the per-sample path do. */
    void skipFade (int numSamples) noexcept;

    /** True while one filter fades into another. */
    bool isSwitching() const noexcept { return switching; }

    /** True when the whole is faded out, so that blocks are left as they are. */
    bool isBypassed() const noexcept { return bypassed; }

private:
    static constexpr int fadeLength = 256;
    static constexpr float switchStep = 1.0f / 256.0f;

    float crossFade (float input, float currentOutput);
    void countFade (int numSamples) noexcept;
    void crossFadeBlock (float* samples, int numSamples);
    void fadeBlock (float* samples, int numSamples);
    ZembraFilter* getFilter (int index) const;

    int capacity = 512;
    std::vector<float> scratch, dryCopy;
    std::vector<std::unique_ptr<ZembraFilter>> filters;
    GainRamp fade;
    bool active = true;
    bool fading = true;
    int fadeCount = 0;
    int current = 0;
    int previous = 0;
    bool switching = false;
    int switchCount = 0;
    bool bypassed = false;
};

} // namespace zembra
