// One parameter of a plug-in: value, range, texts, policy flags and listeners.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framework/core/ChangeSource.h"
#include "framework/core/ListenerArray.h"

#include <juce_data_structures/juce_data_structures.h>

#include <optional>

namespace zembra
{

/** Base class of all parameters.

    A parameter holds its plain value (Hz, dB, percent, a choice's number) and maps it to the
    normalised range 0 to 1 that hosts and MIDI speak. Every change goes through setValue().

    No lock guards a parameter: the value is a relaxed atomic, which costs what a plain double costs,
    and listeners run on the thread of the change, which may be the audio thread.
*/
class Param
{
public:
    enum Type : int
    {
        typeFloat = 0,
        typeInt = 1,
        typeBool = 2
    };

    /** Is told of changes, on the thread that makes them. It must be safe on the audio thread. */
    class Listener
    {
    public:
        virtual ~Listener() = default;

        /** The value has changed; also called once when the listener is added. [any thread] */
        virtual void paramChanged (Param* param, double plainValue, double normalisedValue,
                                   int source) = 0;

        /** The parameter was locked or unlocked. */
        virtual void paramEnabledChanged (Param*, bool /*disabled*/) {}

        /** The frozen mark was set or cleared. [any thread] */
        virtual void paramFrozenChanged (Param*) {}
    };

    class ModifyParamAction;

    /** Makes a parameter that holds its default value.

        @param step  the smallest meaningful change, in plain units; a quarter of it is the threshold
                     below which setValue() ignores a change
    */
    Param (const juce::String& id, const juce::String& name, Type type, double defaultValue,
           double minValue, double maxValue, double step, const juce::String& label);

    virtual ~Param() = default;

    /** Moves the parameter to a 7-bit controller value, linear in the normalised range: 0 is the
        minimum, 127 the maximum. From the editor only a meta parameter accepts it. [any thread]
    */
    virtual void setFromMidi (int value7bit, int source);

    /** Plain value to the normalised range. [any thread] */
    virtual double normalise (double plain) const = 0;

    /** Normalised value to the plain range; not clamped. [any thread] */
    virtual double denormalise (double normalised) const = 0;

    /** The text of a plain value that has no name of its own. [any thread but audio] */
    virtual juce::String getTextForValue (float plain, int maximumStringLength) const = 0;

    /** Changes the value.

        The value is clamped to the range first. A change of at most a quarter step is ignored, and
        so is a NaN. Listeners are told from the last to the first. With an undo manager and a
        source that is an edit, the change is recorded as a ModifyParamAction.
        Allocates only when it records. [any thread; audio thread without undo manager]
    */
    void setValue (double newValue, int source, juce::UndoManager* undoManager = nullptr);

    /** The plain value, always inside the range. [any thread] */
    double getValue() const noexcept { return value.load (std::memory_order_relaxed); }

    /** The name of a plain value, whole, if it has one; otherwise its number as text.
        [any thread but audio]
    */
    juce::String getText (float plain, int maximumStringLength) const;

    /** The plain value that a text stands for: a value's name in any case, or a number with or
        without the unit. Nothing if it is neither. The result isn't clamped.
    */
    std::optional<double> getValueForText (const juce::String& text) const;

    /** Puts `centre` at the normalised value 0.5. Ignored for an empty range. */
    void setSkewForCentre (double centre);

    /** Adds a listener, and tells it the present value at once, with `sourceState`; also when it is
        in the list already. A null listener is a fault and is ignored. [not audio]
    */
    void addListener (Listener* listener);

    /** Removes a listener; it isn't called any more when this returns. [not audio] */
    void removeListener (Listener* listener);

    /** Sets or clears the frozen mark and tells the listeners; nothing if the parameter can't be
        frozen or has that mark already. [any thread]
    */
    void changeFrozen (bool shouldBeFrozen);

    const juce::String& getId() const noexcept { return id; }
    const juce::String& getName() const noexcept { return name; }
    const juce::String& getLabel() const noexcept { return label; }
    Type getType() const noexcept { return type; }
    double getMinValue() const noexcept { return minValue; }
    double getMaxValue() const noexcept { return maxValue; }
    double getRange() const noexcept { return range; }
    double getStep() const noexcept { return step; }
    double getSkew() const noexcept { return skew; }

    /** The number of distinct values: 2 for a switch, otherwise the whole steps in the range + 1. */
    int getNumSteps() const;

    double getDefaultValue() const noexcept
    {
        return defaultValue.load (std::memory_order_relaxed);
    }

    /** Replaces the default value; the value stands. */
    void setDefaultValue (double plain) noexcept
    {
        defaultValue.store (plain, std::memory_order_relaxed);
    }

    bool isAutomatable() const noexcept { return automatable; }
    bool isStored() const noexcept { return stored; }
    bool isMidiLearnable() const noexcept { return midiLearnable; }
    bool isMeta() const noexcept { return meta; }
    bool isLocked() const noexcept { return locked; }
    bool isFreezable() const noexcept { return freezable; }
    bool isFrozen() const noexcept { return frozen.load (std::memory_order_relaxed); }

    /** The policy flags are set where the parameter is made, before other threads know it. */
    void setAutomatable (bool shouldBe) noexcept { automatable = shouldBe; }
    void setStored (bool shouldBe) noexcept { stored = shouldBe; }
    void setMidiLearnable (bool shouldBe) noexcept { midiLearnable = shouldBe; }
    void setMeta (bool shouldBe) noexcept { meta = shouldBe; }
    void setLocked (bool shouldBe) noexcept { locked = shouldBe; }
    void setFreezable (bool shouldBe) noexcept { freezable = shouldBe; }

    /** Names of single values, by the rounded plain value. Filled directly after construction. */
    juce::HashMap<int, juce::String> valueTexts;

private:
    /** Calls `tell (plain, normalised)` with the value, again if another thread has changed it
        meanwhile: that thread may have been done with telling first, and then the old value would
        be the last one told.
    */
    template <typename Function>
    void tellUntilTrue (Function&& tell);

    std::atomic<double> value;
    ListenerArray<Listener> listeners;
    bool automatable = true;
    bool stored = true;
    bool midiLearnable = true;
    bool meta = false;
    bool locked = false;
    bool freezable = true;
    std::atomic<bool> frozen{ false };
    double skew = 1.0;
    const juce::String id, name, label;
    const double minValue, maxValue, step, range;
    std::atomic<double> defaultValue;
    const Type type;

    JUCE_DECLARE_NON_COPYABLE_WITH_LEAK_DETECTOR (Param)
};

} // namespace zembra
