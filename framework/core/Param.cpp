// The change, the text and the listeners of a parameter.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/Param.h"

#include "framework/core/ModifyParamAction.h"

#include <cmath>

namespace zembra
{

namespace
{

/** Clamps to a range whose ends may stand in either order; a NaN passes. */
double clampBetween (double x, double a, double b)
{
    if (x < a && x < b)
        return std::min (a, b);

    if (x > a && x > b)
        return std::max (a, b);

    return x;
}

} // namespace

Param::Param (const juce::String& idToUse, const juce::String& nameToUse, Type typeToUse,
              double defaultValueToUse, double minValueToUse, double maxValueToUse,
              double stepToUse, const juce::String& labelToUse)
    : value (defaultValueToUse),
      id (idToUse),
      name (nameToUse),
      label (labelToUse),
      minValue (minValueToUse),
      maxValue (maxValueToUse),
      step (stepToUse),
      range (maxValueToUse - minValueToUse),
      defaultValue (defaultValueToUse),
      type (typeToUse)
{
}

void Param::setFromMidi (int value7bit, int source)
{
    if (source == sourceEditor && ! meta)
        return;

    setValue (denormalise (value7bit / 127.0), source);
}

void Param::setValue (double newValue, int source, juce::UndoManager* undoManager)
{
    if (locked)
        return;

    const auto clamped = clampBetween (newValue, minValue, maxValue);
    const auto old = getValue();

    // Written so that a NaN, which compares false, ends here too.
    if (! (std::abs (old - clamped) > step * 0.25))
        return;

    if (undoManager != nullptr && (source == sourceEditor || source == sourceLinked))
    {
        setValue (newValue, source);
        undoManager->perform (new ModifyParamAction (*this, newValue, old));
        return;
    }

    value.store (clamped, std::memory_order_relaxed);
    tellUntilTrue (
        [this, source] (double plain, double normalised) {
            listeners.call ([&] (Listener& l)
                            { l.paramChanged (this, plain, normalised, source); });
        });
}

template <typename Function>
void Param::tellUntilTrue (Function&& tell)
{
    double told;

    do
    {
        told = getValue();
        tell (told, normalise (told));
    } while (told != value.load());
}

juce::String Param::getText (float plain, int maximumStringLength) const
{
    const auto named = valueTexts[juce::roundToInt (plain)];
    return named.isNotEmpty() ? named : getTextForValue (plain, maximumStringLength);
}

std::optional<double> Param::getValueForText (const juce::String& text) const
{
    const auto wanted = text.trim();

    for (juce::HashMap<int, juce::String>::Iterator entry (valueTexts); entry.next();)
        if (entry.getValue().equalsIgnoreCase (wanted))
            return entry.getKey();

    const auto number = wanted.retainCharacters ("+-.0123456789eE").isNotEmpty()
                            ? wanted.initialSectionContainingOnly ("+-.0123456789eE")
                            : juce::String();

    if (! number.containsAnyOf ("0123456789"))
        return {};

    const auto plain = number.getDoubleValue();
    return std::isfinite (plain) ? std::optional (plain) : std::nullopt;
}

void Param::setSkewForCentre (double centre)
{
    if (maxValue > minValue)
        skew = std::log (0.5) / std::log ((centre - minValue) / range);
}

void Param::addListener (Listener* listener)
{
    jassert (listener != nullptr);

    if (listener == nullptr)
        return;

    listeners.add (listener);
    tellUntilTrue ([this, listener] (double plain, double normalised)
                   { listener->paramChanged (this, plain, normalised, sourceState); });
}

void Param::removeListener (Listener* listener) { listeners.remove (listener); }

void Param::changeFrozen (bool shouldBeFrozen)
{
    if (! freezable || isFrozen() == shouldBeFrozen)
        return;

    frozen.store (shouldBeFrozen, std::memory_order_relaxed);
    listeners.call ([this] (Listener& l) { l.paramFrozenChanged (this); });
}

int Param::getNumSteps() const
{
    return type == typeBool ? 2 : static_cast<int> (std::floor (range / step)) + 1;
}

} // namespace zembra
