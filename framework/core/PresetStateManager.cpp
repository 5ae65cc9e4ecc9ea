// Finding, writing and reading the element of a state manager.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/PresetStateManager.h"

namespace zembra
{

namespace
{

/** The first child with exactly this tag: JUCE's own search takes any case for the same. */
const juce::XmlElement* findChild (const juce::XmlElement& parent, const juce::String& tag)
{
    for (const auto* child : parent.getChildIterator())
        if (child->getTagName() == tag)
            return child;

    return nullptr;
}

} // namespace

PresetStateManager::PresetStateManager (const juce::String& nameToUse,
                                        const juce::String& typeToUse)
    : name (nameToUse.toUpperCase()),
      type (typeToUse.toUpperCase())
{
}

bool PresetStateManager::canLoadXml (const juce::XmlElement& parent) const
{
    if (findChild (parent, name) != nullptr)
        return true;

    return type.isNotEmpty() && parent.getStringAttribute ("type") == type;
}

void PresetStateManager::saveToParent (juce::XmlElement& parent)
{
    auto* element = parent.createNewChildElement (name);
    saveToXml (*element);

    if (type.isNotEmpty())
        element->setAttribute ("type", type);
}

bool PresetStateManager::loadFromParent (const juce::XmlElement& parent)
{
    if (! canLoadXml (parent))
        return false;

    if (const auto* child = findChild (parent, name))
    {
        loadFromXml (*child);
        return true;
    }

    if (type.isEmpty() || parent.getStringAttribute ("type") != type)
        return false;

    if (const auto* first = parent.getFirstChildElement())
        loadFromXml (*first);

    return true;
}

juce::String PresetStateManager::getDescription (const juce::XmlElement& parent) const
{
    return getTextOfChild (parent, "description");
}

juce::String PresetStateManager::getAuthor (const juce::XmlElement& parent) const
{
    return getTextOfChild (parent, "author");
}

juce::String PresetStateManager::getTextOfChild (const juce::XmlElement& parent,
                                                 const char* attribute) const
{
    const auto* child = canLoadXml (parent) ? findChild (parent, name) : nullptr;
    return child != nullptr ? child->getStringAttribute (attribute) : juce::String();
}

void PresetStateManager::notifyStateChanged()
{
    listeners.call ([] (Listener& l) { l.stateChanged(); });
}

} // namespace zembra
