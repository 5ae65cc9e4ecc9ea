// Which MIDI controller moves which parameters.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/PresetStateManager.h"

#include <atomic>
#include <cstdint>
#include <vector>

namespace zembra
{

class ParamSet;
class PluginProcessor;

/** Holds the controller of each parameter: at most one, while a controller may drive any number of
    parameters. As a state manager it writes one attribute per mapped parameter.

    The map is one atomic word per parameter, with no second map to keep in step: it is read and
    changed on any thread at any time, without a lock, a wait or an allocation. What a controller
    drives is found by looking through the words.
*/
class ParamsMidiMapper final : public PresetStateManager
{
public:
    /** Is told of changed mappings, on the thread of the change, which may be the audio thread. */
    class Listener
    {
    public:
        virtual ~Listener() = default;

        /** A parameter has a new controller, or none if `cc` is -1. [any thread] */
        virtual void mappingChanged (ParamsMidiMapper* mapper, const juce::String& paramId,
                                     int cc) = 0;
    };

    /** Makes an empty map of the processor's parameters, which must all exist by now. */
    explicit ParamsMidiMapper (PluginProcessor& processor);

    /** Gives a parameter a controller in place of the one it had, and tells the listeners; nothing
        if it has that controller already. An unknown id is ignored. [any thread]
    */
    void setMapping (int cc, const juce::String& paramId);

    /** Takes a parameter's controller away and tells the listeners; nothing if there is none.
        [any thread]
    */
    void removeMapping (const juce::String& paramId);

    /** The controller of a parameter, -1 if there is none. [any thread] */
    int getMapping (const juce::String& paramId) const;

    /** The parameters that a controller drives, the longest mapped first. [any thread but audio] */
    juce::StringArray getParamsForCC (int cc) const;

    /** Moves the parameters that a controller drives, the longest mapped first.
        @param value  0 to 127, the minimum to the maximum of each parameter
        [any thread]
    */
    void handleController (int cc, int value);

    void saveToXml (juce::XmlElement& element) override;

    /** Replaces the whole map: a parameter that isn't in the element, or stands there with -1, has
        no controller afterwards.
    */
    void loadFromXml (const juce::XmlElement& element) override;

    using PresetStateManager::addListener;
    using PresetStateManager::removeListener;
    void addListener (Listener* listener) { mappingListeners.add (listener); }
    void removeListener (Listener* listener) { mappingListeners.remove (listener); }

private:
    /** A controller in the low half and, in the high half, when it came: a count that puts the
        parameters of one controller into the order in which they were mapped.
    */
    using Entry = std::uint64_t;

    static Entry makeEntry (int cc, std::uint32_t stamp) noexcept;
    static int getController (Entry entry) noexcept;
    static std::uint32_t getStamp (Entry entry) noexcept;

    int getIndex (const juce::String& paramId) const;
    void change (int index, int cc);
    template <typename Function>
    void forEachParamOf (int cc, Function&& function) const;

    ListenerArray<Listener> mappingListeners;
    ParamSet& params;
    std::vector<std::atomic<Entry>> entries;
    std::atomic<std::uint32_t> lastStamp{ 0 };

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ParamsMidiMapper)
};

} // namespace zembra
