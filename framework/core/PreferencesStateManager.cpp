// Instance preferences to attributes and back.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/PreferencesStateManager.h"

namespace zembra
{

PreferencesStateManager::PreferencesStateManager() : PresetStateManager ("instancePrefs") {}

void PreferencesStateManager::saveToXml (juce::XmlElement& element)
{
    // A key that is no XML name would make the whole state unreadable.
    for (const auto& key : values.getAllKeys())
        if (juce::XmlElement::isValidXmlName (key))
            element.setAttribute (key, values[key]);
}

void PreferencesStateManager::loadFromXml (const juce::XmlElement& element)
{
    constexpr int maxKeys = 256, maxLength = 1024;

    for (int i = 0; i < element.getNumAttributes(); ++i)
    {
        const auto& key = element.getAttributeName (i);
        const auto& text = element.getAttributeValue (i);

        if (text.length() <= maxLength && (values.size() < maxKeys || values.containsKey (key)))
            values.set (key, text);
    }
}

} // namespace zembra
