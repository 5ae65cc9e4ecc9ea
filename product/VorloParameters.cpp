// Ranges, defaults and texts of the signal chain's parameters.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/VorloParameters.h"

#include "framework/core/ParamBool.h"
#include "framework/core/ParamFloat.h"
#include "framework/core/ParamInt.h"
#include "product/dsp/LfoDivisions.h"

namespace
{

using zembra::Param;
using zembra::ParamSet;

/** A percentage, 0 to 100 in steps of 0.1. */
Param& makePercent (ParamSet& set, const char* id, const char* name)
{
    return *new zembra::ParamFloat (id, name, &set, 0.0, 0.0, 100.0, 0.1, "%");
}

/** A cutoff from 20 Hz to 20 kHz, with 1 kHz at mid travel. */
Param& makeFrequency (ParamSet& set, const char* id, const char* name, double defaultHz)
{
    auto* param = new zembra::ParamFloat (id, name, &set, defaultHz, 20.0, 20000.0, 1.0, "Hz");
    param->setSkewForCentre (1000.0);
    return *param;
}

/** A resonance, 0 to 1. */
Param& makeResonance (ParamSet& set, const char* id, const char* name)
{
    return *new zembra::ParamFloat (id, name, &set, 0.0, 0.0, 1.0, 0.01, "");
}

void setTexts (Param& param, std::initializer_list<const char*> texts)
{
    for (int i = 0; const auto* text : texts)
        param.valueTexts.set (i++, text);
}

/** A choice between named values. */
Param& makeChoice (ParamSet& set, const char* id, const char* name,
                   std::initializer_list<const char*> texts)
{
    const auto maxValue = static_cast<double> (texts.size() - 1);
    auto* param = new zembra::ParamInt (id, name, &set, 0.0, 0.0, maxValue, 1.0, "");
    setTexts (*param, texts);
    return *param;
}

Param& makeFilterBypass (ParamSet& set)
{
    auto* param = new zembra::ParamBool (paramId::bypassFilter, "Bypass Filter", &set, 0.0, "");
    setTexts (*param, { "active", "bypassed" });
    return *param;
}

Param& makeSyncSwitch (ParamSet& set)
{
    auto& param = makeChoice (set, paramId::lfoSyncOrFree, "LFO Sync Or Free", { "free", "sync" });
    param.setMeta (true);
    return param;
}

/** 0 to 10 Hz, with 2 Hz at mid travel. */
Param& makeFreeRate (ParamSet& set)
{
    auto* param = new zembra::ParamFloat (paramId::lfoFreeRate, "LFO Free Rate", &set, 0.0, 0.0,
                                          10.0, 0.01, "Hz");
    param->setSkewForCentre (2.0);
    return *param;
}

Param& makeSyncedPeriod (ParamSet& set)
{
    auto* param = new zembra::ParamInt (paramId::lfoSyncedPeriod, "LFO Synced Period", &set,
                                        quarterNoteIndex, 0.0, lfoDivisions.size() - 1, 1.0, "");

    for (int i = 0; const auto& division : lfoDivisions)
        param->valueTexts.set (i++, division.text);

    return *param;
}

} // namespace

// The members are made in the order of their declaration, which is the host's order.
VorloParameters::VorloParameters (ParamSet& set)
    : drive (makePercent (set, paramId::drive, "Drive")),
      driveModDepth (makePercent (set, paramId::driveModDepth, "Drive Mod Depth")),
      crush (makePercent (set, paramId::crush, "Crush")),
      crushModDepth (makePercent (set, paramId::crushModDepth, "Crush Mod Depth")),
      downsamp (makePercent (set, paramId::downsamp, "Downsamp")),
      downsampModDepth (makePercent (set, paramId::downsampModDepth, "Downsamp Mod Depth")),
      bypassFilter (makeFilterBypass (set)),
      filterType (makeChoice (set, paramId::filterType, "Filter Type", { "lowpass", "hipass" })),
      lowpassFreq (makeFrequency (set, paramId::lowpassFreq, "Lowpass Freq", 8000.0)),
      lowpassRes (makeResonance (set, paramId::lowpassRes, "Lowpass Res")),
      hipassFreq (makeFrequency (set, paramId::hipassFreq, "Hipass Freq", 20.0)),
      hipassRes (makeResonance (set, paramId::hipassRes, "Hipass Res")),
      filterFreqModDepth (makePercent (set, paramId::filterFreqModDepth, "Filter Freq Mod Depth")),
      filterResModDepth (makePercent (set, paramId::filterResModDepth, "Filter Res Mod Depth")),
      lfoSyncOrFree (makeSyncSwitch (set)),
      lfoFreeRate (makeFreeRate (set)),
      lfoSyncedPeriod (makeSyncedPeriod (set)),
      lfoWaveform (makeChoice (set, paramId::lfoWaveform, "LFO Waveform",
                               { "sine", "square", "tri", "rand" }))
{
}
