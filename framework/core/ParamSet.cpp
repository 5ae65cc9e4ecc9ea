// The list of parameters and its reading and writing.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/ParamSet.h"

#include "framework/core/XmlReader.h"

#include <cmath>
#include <limits>

namespace zembra
{

namespace
{

/** Reads a number in the precision that hosts and old files have. What no float can hold becomes
    the largest one, which the parameter's range then clamps; a NaN stays one.
*/
double getFloatAttribute (const juce::XmlElement& element, const juce::String& id, double fallback)
{
    constexpr auto limit = static_cast<double> (std::numeric_limits<float>::max());
    const auto number = XmlReader::getNumber (element, id, fallback);
    return static_cast<double> (static_cast<float> (std::clamp (number, -limit, limit)));
}

} // namespace

ParamSet::ParamSet (const juce::String& tag) : PresetStateManager (tag) {}

ParamSet::~ParamSet()
{
    for (auto* param : params)
        param->removeListener (this);

    for (int i = params.size(); --i >= 0;)
        delete params.getUnchecked (i);
}

void ParamSet::addParam (Param* param)
{
    paramIds.add (param->getId());
    params.add (param);
    param->addListener (this);
}

Param* ParamSet::getParam (const juce::String& id) const { return params[paramIds.indexOf (id)]; }

int ParamSet::indexOf (const Param* param) const
{
    return params.indexOf (
        const_cast<Param*> (param)); // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

void ParamSet::saveToXml (juce::XmlElement& element)
{
    constexpr int decimalPlaces = 20;

    for (const auto* param : params)
        if (param->isStored())
            element.setAttribute (param->getId(), juce::String (param->getValue(), decimalPlaces));
}

void ParamSet::loadFromXml (const juce::XmlElement& element)
{
    restore (true, element);
    restore (false, element);
}

void ParamSet::restore (bool metaParams, const juce::XmlElement& element)
{
    // Far below every range: a meta parameter that is missing ends at its minimum, never where it
    // was. What hangs on it (a link, a sync) is then off, whatever the rest of the element says.
    constexpr double belowEveryRange = -999.0;

    for (auto* param : params)
    {
        if (param->isMeta() != metaParams || ! param->isStored() || param->isFrozen())
            continue;

        const auto fallback = metaParams ? belowEveryRange : param->getDefaultValue();
        param->setValue (getFloatAttribute (element, param->getId(), fallback), sourceState);
    }
}

void ParamSet::setFrozenStates (const juce::StringPairArray& states)
{
    for (const auto& id : states.getAllKeys())
    {
        auto* param = getParam (id);
        jassert (param != nullptr);

        if (param != nullptr)
            param->changeFrozen (states.getValue (id, "0") == "1");
    }
}

void ParamSet::setDefaultsFromXml (const juce::XmlElement& element)
{
    for (auto* param : params)
        if (param->isStored())
            if (const auto plain =
                    getFloatAttribute (element, param->getId(), param->getDefaultValue());
                ! std::isnan (plain))
                param->setDefaultValue (
                    std::clamp (plain, param->getMinValue(), param->getMaxValue()));
}

void ParamSet::paramChanged (Param*, double, double, int) { notifyStateChanged(); }

} // namespace zembra
