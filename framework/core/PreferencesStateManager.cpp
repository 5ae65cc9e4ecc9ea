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
    for (int i = 0; i < element.getNumAttributes(); ++i)
        values.set (element.getAttributeName (i), element.getAttributeValue (i));
}

} // namespace zembra
