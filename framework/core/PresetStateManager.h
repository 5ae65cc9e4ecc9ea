// One named slice of plug-in state that writes and reads an XML element.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/ListenerArray.h"

namespace zembra
{

/** Base class of everything that presets and project states are made of. The element's tag is the
    manager's name in upper case.
*/
class PresetStateManager
{
public:
    /** Is told that something in the slice has changed, on the thread of the change. */
    class Listener
    {
    public:
        virtual ~Listener() = default;
        virtual void stateChanged() = 0;
    };

    /** Both texts are stored in upper case. A manager with a type also reads trees that carry that
        `type` on their root instead of a child with its tag.
    */
    explicit PresetStateManager (const juce::String& name, const juce::String& type = {});
    virtual ~PresetStateManager() = default;

    /** Writes the slice as attributes and children of `element`. */
    virtual void saveToXml (juce::XmlElement& element) = 0;

    /** Takes the slice from `element`. */
    virtual void loadFromXml (const juce::XmlElement& element) = 0;

    /** True if `parent` holds this slice. */
    virtual bool canLoadXml (const juce::XmlElement& parent) const;

    /** The tag of the slice's element. */
    const juce::String& getName() const noexcept { return name; }

    /** Appends the slice to `parent` as its last child. */
    void saveToParent (juce::XmlElement& parent);

    /** Reads the slice from `parent`; false, with nothing changed, if it isn't there. */
    bool loadFromParent (const juce::XmlElement& parent);

    /** Texts that old files keep on the slice's element; empty if there are none. */
    juce::String getDescription (const juce::XmlElement& parent) const;
    juce::String getAuthor (const juce::XmlElement& parent) const;

    void addListener (Listener* listener) { listeners.add (listener); }
    void removeListener (Listener* listener) { listeners.remove (listener); }

protected:
    /** Tells the listeners, from the last to the first. [any thread] */
    void notifyStateChanged();

private:
    juce::String getTextOfChild (const juce::XmlElement& parent, const char* attribute) const;

    ListenerArray<Listener> listeners;
    const juce::String name, type;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (PresetStateManager)
};

} // namespace zembra
