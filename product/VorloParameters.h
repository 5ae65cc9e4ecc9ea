// The one table of the product's parameters.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/ParamSet.h"

/** The ids, the only place where they stand as texts. The mixer's five belong to the framework's
    DryWetProcessor and are repeated here for those who look a parameter up.
*/
namespace paramId
{
inline constexpr auto dry = "dry";
inline constexpr auto wet = "wet";
inline constexpr auto bypassDrySignal = "bypassDrySignal";
inline constexpr auto bypassWetSignal = "bypassWetSignal";
inline constexpr auto dryWetLink = "dryWetLink";
inline constexpr auto drive = "drive";
inline constexpr auto driveModDepth = "driveModDepth";
inline constexpr auto crush = "crush";
inline constexpr auto crushModDepth = "crushModDepth";
inline constexpr auto downsamp = "downsamp";
inline constexpr auto downsampModDepth = "downsampModDepth";
inline constexpr auto bypassFilter = "bypassFilter";
inline constexpr auto filterType = "filterType";
inline constexpr auto lowpassFreq = "lowpassFreq";
inline constexpr auto lowpassRes = "lowpassRes";
inline constexpr auto hipassFreq = "hipassFreq";
inline constexpr auto hipassRes = "hipassRes";
inline constexpr auto filterFreqModDepth = "filterFreqModDepth";
inline constexpr auto filterResModDepth = "filterResModDepth";
inline constexpr auto lfoSyncOrFree = "lfoSyncOrFree";
inline constexpr auto lfoFreeRate = "lfoFreeRate";
inline constexpr auto lfoSyncedPeriod = "lfoSyncedPeriod";
inline constexpr auto lfoWaveform = "lfoWaveform";
} // namespace paramId

/** Makes the parameters of the signal chain and keeps them at hand. The set owns them. Construct it
    after the mixer's five: the order of construction is the host's order.
*/
struct VorloParameters
{
    explicit VorloParameters (zembra::ParamSet& set);

    zembra::Param &drive, &driveModDepth, &crush, &crushModDepth, &downsamp, &downsampModDepth;
    zembra::Param &bypassFilter, &filterType;
    zembra::Param &lowpassFreq, &lowpassRes, &hipassFreq, &hipassRes;
    zembra::Param &filterFreqModDepth, &filterResModDepth;
    zembra::Param &lfoSyncOrFree, &lfoFreeRate, &lfoSyncedPeriod, &lfoWaveform;
};
