// The state manager of an instance's preferences.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/PresetStateManager.h"

namespace zembra
{

/** Free texts by key that belong to one instance and travel with the project; tag INSTANCEPREFS. */
class PreferencesStateManager final : public PresetStateManager
{
public:
    PreferencesStateManager();

    void saveToXml (juce::XmlElement& element) override;

    /** Known keys get the element's values, new ones are appended, absent ones stay. What foreign
        projects bring can't make the state grow without end: beyond 256 keys nothing is appended,
        and texts above 1,024 characters are left out.
    */
    void loadFromXml (const juce::XmlElement& element) override;

    /** The keys, which compare without case, and their values. [message thread] */
    juce::StringPairArray& getValues() noexcept { return values; }

private:
    juce::StringPairArray values{ true };

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PreferencesStateManager)
};

} // namespace zembra
