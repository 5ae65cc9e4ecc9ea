// The ways in which a state is spoilt.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/validate/Corruption.h"

namespace validate
{

namespace
{

juce::MemoryBlock makeGarbage (juce::Random& random)
{
    juce::MemoryBlock garbage (static_cast<size_t> (random.nextInt (5000)), true);
    random.fillBitsRandomly (garbage.getData(), garbage.getSize());
    return garbage;
}

void changeBytes (juce::MemoryBlock& state, juce::Random& random)
{
    const auto size = static_cast<int> (state.getSize());

    for (int i = 1 + random.nextInt (8); --i >= 0;)
        state[random.nextInt (size)] = static_cast<char> (random.nextInt (256));
}

void doubleOrDropPart (juce::MemoryBlock& state, juce::Random& random)
{
    const auto size = static_cast<int> (state.getSize());
    const auto begin = random.nextInt (size);
    const auto length = 1 + random.nextInt (size - begin);

    if (random.nextBool())
        state.removeSection (static_cast<size_t> (begin), static_cast<size_t> (length));
    else
        state.insert (
            juce::MemoryBlock (state.begin() + begin, static_cast<size_t> (length)).getData(),
            static_cast<size_t> (length), static_cast<size_t> (begin));
}

/** Puts something odd in place of a number that stands there as text, the length staying the same. */
void replaceNumber (juce::MemoryBlock& state, juce::Random& random)
{
    const juce::String odd[] = {
        "nan", "inf", "-1", "1e9", "9e999", "-", "99999999", "0x1", "1.2.3"
    };
    const auto size = static_cast<int> (state.getSize());
    auto i = random.nextInt (size);

    while (i < size && ! juce::CharacterFunctions::isDigit (state[i]))
        ++i;

    const auto& text = odd[random.nextInt (static_cast<int> (std::size (odd)))];

    for (int j = 0; j < text.length() && i < size; ++j, ++i)
        state[i] = static_cast<char> (text[j]);
}

} // namespace

juce::MemoryBlock corrupt (const juce::MemoryBlock& state, juce::Random& random)
{
    auto spoilt = state;

    if (state.isEmpty())
        return makeGarbage (random);

    switch (random.nextInt (6))
    {
    case 0:
        return makeGarbage (random);
    case 1:
        spoilt.setSize (static_cast<size_t> (random.nextInt (static_cast<int> (state.getSize()))));
        break;
    case 2:
        doubleOrDropPart (spoilt, random);
        break;
    case 3:
        changeBytes (spoilt, random);
        break;
    default:
        for (int i = 1 + random.nextInt (4); --i >= 0;)
            replaceNumber (spoilt, random);
    }

    return spoilt;
}

} // namespace validate
