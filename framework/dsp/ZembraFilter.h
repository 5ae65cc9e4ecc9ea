// What every filter of the framework can do.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace zembra
{

/** A filter of one channel. */
class ZembraFilter
{
public:
    virtual ~ZembraFilter() = default;

    /** Takes the sample rate in Hz and clears the state. [not while processing] */
    virtual void prepare (float sampleRate, int blockSize) = 0;

    /** Clears the state. [audio thread] */
    virtual void reset() = 0;

    /** Filters a block in place. [audio thread] */
    virtual void process (float* samples, int numSamples) = 0;

    /** Filters one sample. [audio thread] */
    virtual float process (float sample) = 0;
};

} // namespace zembra
