// The parameters of one plug-in instance, in the host's order; also their state manager.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/Param.h"
#include "framework/core/PresetStateManager.h"

namespace zembra
{

/** Owns the parameters. The index of a parameter is the host's index and never changes; after the
    product's constructor the set is complete, so that reading it needs no lock.

    As a state manager it writes each stored parameter's plain value as an attribute.
*/
class ParamSet final : public PresetStateManager, private Param::Listener
{
public:
    explicit ParamSet (const juce::String& tag);
    ~ParamSet() override;

    /** Appends a parameter and takes ownership. Called by the parameters' constructors. */
    void addParam (Param* param);

    /** The parameter with exactly this id, or null. [any thread] */
    Param* getParam (const juce::String& id) const;

    /** The parameter at an index, or null. [any thread] */
    Param* getParam (int index) const { return params[index]; }

    /** The index of a parameter, -1 if it isn't in the set. [any thread] */
    int indexOf (const Param* param) const;

    /** The number of parameters. [any thread] */
    int getNumParams() const noexcept { return params.size(); }

    /** Writes the plain value of every stored parameter. */
    void saveToXml (juce::XmlElement& element) override;

    /** Restores all parameters that are stored and not frozen: first the meta parameters, of which
        a missing one goes to its minimum, then the others, of which a missing one goes to its
        default. A number beyond a range is clamped to it; a NaN changes nothing.
    */
    void loadFromXml (const juce::XmlElement& element) override;

    /** Sets frozen marks from ids with "1" or "0". An unknown id is a fault and is ignored. */
    void setFrozenStates (const juce::StringPairArray& states);

    /** Takes new default values, clamped to their ranges, from an element as saveToXml() writes it;
        the values stand.
    */
    void setDefaultsFromXml (const juce::XmlElement& element);

    Param** begin() noexcept { return params.begin(); }
    Param** end() noexcept { return params.end(); }
    Param* const* begin() const noexcept { return params.begin(); }
    Param* const* end() const noexcept { return params.end(); }

private:
    void paramChanged (Param*, double plain, double normalised, int source) override;
    void restore (bool metaParams, const juce::XmlElement& element);

    juce::StringArray paramIds;
    juce::Array<Param*> params;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (ParamSet)
};

} // namespace zembra
