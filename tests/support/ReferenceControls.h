// What the parameters of the reference engine mean to it: cached values, link, sync and free.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ReferenceOutput.h"
#include "ReferenceParameters.h"
#include "ReferenceSyncClock.h"

#include <array>
#include <string>

namespace reference
{

/** The parameters with their side effects, and the values that the stages read.
    Amounts, depths and resonances are 0 to 1, frequencies in Hz, gains linear. */
class ReferenceControls
{
public:
    struct Filter
    {
        float freq = 0.0f, res = 0.0f;
    };

    ReferenceControls();
    ReferenceControls (const ReferenceControls&) = delete;
    ReferenceControls& operator= (const ReferenceControls&) = delete;

    void set (const std::string& id, double value) { parameters.set (id, value, Source::host); }
    double get (const std::string& id) const { return parameters.get (id); }
    MixGains mixGains() const;
    bool modulates() const;

    float driveAmount = 0.0f, driveDepth = 0.0f, crushAmount = 0.0f, crushDepth = 0.0f;
    float downsampAmount = 0.0f, downsampDepth = 0.0f;
    float filterFreqDepth = 0.0f, filterResDepth = 0.0f;
    int filterType = 0, lfoWaveform = 0;
    bool filterEnabled = true, lfoSynced = false;
    std::array<Filter, 2> filters;
    LfoSyncClock clock;

private:
    void parameterChanged (const Parameter&, Source);
    bool mixParameterChanged (const Parameter&, Source);
    bool filterParameterChanged (const Parameter&);
    bool lfoParameterChanged (const Parameter&, Source);
    void setSynced (bool shouldBeSynced, Source);

    float dryGain = 0.0f, wetGain = 0.0f;
    bool dryBypassed = false, wetBypassed = false, linked = false;
    double linkOffset = 0.0;
    ReferenceParameters parameters;
};

} // namespace reference
