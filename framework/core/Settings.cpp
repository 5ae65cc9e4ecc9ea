// Keys and trees of the settings file.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/Settings.h"

namespace zembra
{

Settings::Settings (const juce::File& file, const juce::PropertiesFile::Options& options,
                    ParamSet& params)
    : propertiesFile (file, options),
      paramSet (params)
{
}

Settings::~Settings() { propertiesFile.saveIfNeeded(); }

juce::String Settings::getValue (const juce::String& key, const juce::String& defaultValue) const
{
    return propertiesFile.getValue (key, defaultValue);
}

void Settings::setValue (const juce::String& key, const juce::String& value)
{
    propertiesFile.setValue (key, value);
}

juce::StringPairArray Settings::getFrozenStates() const
{
    juce::StringPairArray states (true);
    const auto tree = propertiesFile.getXmlValue ("frozen");

    if (tree != nullptr)
        if (const auto* marks = tree->getChildByName ("STATES"))
            for (const auto* param : paramSet)
                states.set (param->getId(), marks->getBoolAttribute (param->getId()) ? "1" : "0");

    return states;
}

void Settings::saveFrozenStates()
{
    auto marks = std::make_unique<juce::XmlElement> ("STATES");

    for (int i = paramSet.getNumParams(); --i >= 0;)
        marks->setAttribute (paramSet.getParam (i)->getId(),
                             paramSet.getParam (i)->isFrozen() ? 1 : 0);

    replaceChild ("frozen", "FROZEN", std::move (marks));
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
    const auto tree = propertiesFile.getXmlValue (key);
    const auto* child = tree != nullptr ? tree->getChildByName (tag) : nullptr;
    return child != nullptr ? child->getStringAttribute (attribute) : juce::String();
}

void Settings::setChildText (const juce::String& key, const char* tag, const char* attribute,
                             const juce::String& text)
{
    auto child = std::make_unique<juce::XmlElement> (tag);
    child->setAttribute (attribute, text);
    replaceChild (key, key, std::move (child));
}

void Settings::replaceChild (const juce::String& key, const juce::String& rootTag,
                             std::unique_ptr<juce::XmlElement> child)
{
    auto tree = propertiesFile.getXmlValue (key);

    if (tree == nullptr)
        tree = std::make_unique<juce::XmlElement> (rootTag);

    tree->deleteAllChildElementsWithTagName (child->getTagName());
    tree->addChildElement (child.release());
    propertiesFile.setValue (key, tree.get());
}

} // namespace zembra
