// The state manager of the frozen marks.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/ParamSet.h"

namespace zembra
{

/** Writes and reads one attribute per parameter, "1" for a frozen one; tag FROZENPARAMS. */
class FrozenPresetStateManager final : public PresetStateManager
{
public:
    explicit FrozenPresetStateManager (ParamSet& params);

    void saveToXml (juce::XmlElement& element) override;

    /** A parameter without an attribute keeps its mark. */
    void loadFromXml (const juce::XmlElement& element) override;

private:
    ParamSet& paramSet;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (FrozenPresetStateManager)
};

} // namespace zembra
