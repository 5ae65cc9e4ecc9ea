// Keys and trees of the settings file.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/Settings.h"

namespace zembra
{

Settings::Settings (const juce::File& file, const juce::PropertiesFile::Options& options,
                    ParamSet& params)
    : settingsFile (file, options.millisecondsBeforeSaving),
      paramSet (params)
{
}

juce::String Settings::getValue (const juce::String& key, const juce::String& defaultValue) const
{
    return settingsFile.getValue (key, defaultValue);
}

void Settings::setValue (const juce::String& key, const juce::String& value)
{
    settingsFile.setValue (key, value);
}

juce::StringPairArray Settings::getFrozenStates() const
{
    juce::StringPairArray states (true);
    const auto tree = settingsFile.getTree ("frozen");

    if (tree != nullptr)
        if (const auto* marks = tree->getChildByName ("STATES"))
            for (const auto* param : paramSet)
                states.set (param->getId(), marks->getBoolAttribute (param->getId()) ? "1" : "0");

    return states;
}

void Settings::saveFrozenStates()
{
    juce::XmlElement marks ("STATES");

    for (int i = paramSet.getNumParams(); --i >= 0;)
        marks.setAttribute (paramSet.getParam (i)->getId(),
                            paramSet.getParam (i)->isFrozen() ? 1 : 0);

    settingsFile.setChild ("frozen", "FROZEN", marks);
}

juce::String Settings::getRecentFiles (const juce::String& key) const
{
    return getChildText (key, "RECENT", "recentFiles");
}

void Settings::setRecentFiles (const juce::String& key, const juce::String& text)
{
    setChildText (key, "RECENT", "recentFiles", text);
}

juce::String Settings::getDefaultPreset (const juce::String& key) const
{
    return getChildText (key, "DEFAULT", "defaultPreset");
}

void Settings::setDefaultPreset (const juce::String& key, const juce::String& path)
{
    setChildText (key, "DEFAULT", "defaultPreset", path);
}

juce::String Settings::getChildText (const juce::String& key, const char* tag,
                                     const char* attribute) const
{
    const auto tree = settingsFile.getTree (key);
    const auto* child = tree != nullptr ? tree->getChildByName (tag) : nullptr;
    return child != nullptr ? child->getStringAttribute (attribute) : juce::String();
}

void Settings::setChildText (const juce::String& key, const char* tag, const char* attribute,
                             const juce::String& text)
{
    juce::XmlElement child (tag);
    child.setAttribute (attribute, text);
    settingsFile.setChild (key, key, child);
}

} // namespace zembra
