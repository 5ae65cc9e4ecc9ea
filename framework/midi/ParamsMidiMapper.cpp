// Changing, following, writing and reading the map of controllers.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/midi/ParamsMidiMapper.h"

#include "framework/core/PluginProcessor.h"
#include "framework/core/XmlReader.h"

namespace zembra
{

namespace
{

constexpr int noController = -1;

} // namespace

ParamsMidiMapper::ParamsMidiMapper (PluginProcessor& processor)
    : PresetStateManager ("MIDImapping"),
      params (processor.getParamSet()),
      entries (static_cast<size_t> (params.getNumParams()))
{
    for (auto& entry : entries)
        entry.store (makeEntry (noController, 0));
}

ParamsMidiMapper::Entry ParamsMidiMapper::makeEntry (int cc, std::uint32_t stamp) noexcept
{
    return Entry{ stamp } << 32 | static_cast<std::uint32_t> (cc);
}

int ParamsMidiMapper::getController (Entry entry) noexcept
{
    return static_cast<int> (static_cast<std::uint32_t> (entry));
}

std::uint32_t ParamsMidiMapper::getStamp (Entry entry) noexcept
{
    return static_cast<std::uint32_t> (entry >> 32);
}

int ParamsMidiMapper::getIndex (const juce::String& paramId) const
{
    return params.indexOf (params.getParam (paramId));
}

void ParamsMidiMapper::setMapping (int cc, const juce::String& paramId)
{
    change (getIndex (paramId), cc);
}

void ParamsMidiMapper::removeMapping (const juce::String& paramId)
{
    change (getIndex (paramId), noController);
}

void ParamsMidiMapper::change (int index, int cc)
{
    if (index < 0)
        return;

    auto& entry = entries[static_cast<size_t> (index)];

    if (getController (entry.load()) == cc)
        return;

    entry.store (makeEntry (cc, ++lastStamp));
    const auto& id = params.getParam (index)->getId();
    mappingListeners.call ([&] (Listener& l) { l.mappingChanged (this, id, cc); });
    notifyStateChanged();
}

int ParamsMidiMapper::getMapping (const juce::String& paramId) const
{
    const auto index = getIndex (paramId);
    return index < 0 ? noController : getController (entries[static_cast<size_t> (index)].load());
}

template <typename Function>
void ParamsMidiMapper::forEachParamOf (int cc, Function&& function) const
{
    // What is mapped after this moment doesn't count, so that the search ends whatever other threads
    // do to the map meanwhile.
    const auto newest = lastStamp.load();

    for (std::uint32_t done = 0;;)
    {
        auto next = newest;
        auto index = entries.size();

        for (size_t i = 0; i < entries.size(); ++i)
        {
            const auto entry = entries[i].load();
            const auto stamp = getStamp (entry);

            if (getController (entry) == cc && stamp > done && stamp <= next)
            {
                next = stamp;
                index = i;
            }
        }

        if (index == entries.size())
            return;

        done = next;
        function (*params.getParam (static_cast<int> (index)));
    }
}

juce::StringArray ParamsMidiMapper::getParamsForCC (int cc) const
{
    juce::StringArray ids;

    if (cc != noController)
        forEachParamOf (cc, [&] (const Param& param) { ids.add (param.getId()); });

    return ids;
}

void ParamsMidiMapper::handleController (int cc, int value)
{
    forEachParamOf (cc, [value] (Param& param) { param.setFromMidi (value, sourceMidi); });
}

void ParamsMidiMapper::saveToXml (juce::XmlElement& element)
{
    for (int i = params.getNumParams(); --i >= 0;)
        if (const auto cc = getController (entries[static_cast<size_t> (i)].load());
            cc != noController)
            element.setAttribute (params.getParam (i)->getId(), cc);
}

void ParamsMidiMapper::loadFromXml (const juce::XmlElement& element)
{
    for (int i = 0; i < params.getNumParams(); ++i)
        change (i, XmlReader::getInt (element, params.getParam (i)->getId(), noController));
}

} // namespace zembra
