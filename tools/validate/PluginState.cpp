// Unwrapping and wrapping of states: VST 2 (FXB file), VST3 (XML), LV2 (Turtle).
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/validate/PluginState.h"

#include "tools/validate/Format.h"

namespace validate
{

namespace
{

/** An FXB file with a chunk: a header of this size, whose last word is the chunk's length. */
constexpr size_t fxbHeaderSize = 160;

/** JUCE's host for VST3 names the component's state so. */
constexpr auto componentTag = "IComponent";

/** The place of the longest text in quotes, which in a Turtle state is the chunk. */
juce::Range<int> findLongestQuote (const juce::String& text)
{
    juce::Range<int> longest;

    for (int begin = text.indexOfChar ('"'); begin >= 0;)
    {
        const auto end = text.indexOfChar (begin + 1, '"');

        if (end < 0)
            break;

        if (end - begin - 1 > longest.getLength())
            longest = { begin + 1, end };

        begin = text.indexOfChar (end + 1, '"');
    }

    return longest;
}

std::unique_ptr<juce::XmlElement> readXml (const juce::MemoryBlock& state)
{
    return juce::AudioProcessor::getXmlFromBinary (state.getData(),
                                                   static_cast<int> (state.getSize()));
}

juce::MemoryBlock wrapInXml (const juce::MemoryBlock& state, const juce::MemoryBlock& bytes)
{
    const auto xml = readXml (state);
    auto* component = xml->getChildByName (componentTag);
    component->deleteAllTextElements();
    component->addTextElement (bytes.toBase64Encoding());
    juce::MemoryBlock wrapped;
    juce::AudioProcessor::copyXmlToBinary (*xml, wrapped);
    return wrapped;
}

juce::MemoryBlock wrapInTurtle (const juce::MemoryBlock& state, const juce::MemoryBlock& bytes)
{
    const auto text = state.toString();
    const auto place = findLongestQuote (text);
    const auto wrapped =
        text.replaceSection (place.getStart(), place.getLength(), bytes.toBase64Encoding());
    return { wrapped.toRawUTF8(), wrapped.getNumBytesAsUTF8() };
}

juce::MemoryBlock wrapInFxb (const juce::MemoryBlock& state, const juce::MemoryBlock& bytes)
{
    juce::MemoryBlock wrapped (state.getData(), fxbHeaderSize);
    auto* length = static_cast<char*> (wrapped.getData()) + fxbHeaderSize - sizeof (juce::uint32);
    const auto size =
        juce::ByteOrder::swapIfLittleEndian (static_cast<juce::uint32> (bytes.getSize()));
    std::memcpy (length, &size, sizeof (size));
    wrapped.append (bytes.getData(), bytes.getSize());
    return wrapped;
}

} // namespace

juce::MemoryBlock getState (juce::AudioPluginInstance& instance)
{
    juce::MemoryBlock state;
    instance.getStateInformation (state);
    return state;
}

void setState (juce::AudioPluginInstance& instance, const juce::MemoryBlock& state)
{
    instance.setStateInformation (state.getData(), static_cast<int> (state.getSize()));
}

juce::MemoryBlock unwrapState (const juce::AudioPluginInstance& instance,
                               const juce::MemoryBlock& state)
{
    juce::MemoryBlock bytes;
    juce::String encoded;

    switch (getFormat (instance))
    {
    case Format::other:
        return state;
    case Format::vst2:
        if (state.getSize() > fxbHeaderSize)
            bytes.append (static_cast<const char*> (state.getData()) + fxbHeaderSize,
                          state.getSize() - fxbHeaderSize);
        return bytes;
    case Format::vst3:
        if (const auto xml = readXml (state))
            if (const auto* component = xml->getChildByName (componentTag))
                encoded = component->getAllSubText().trim();
        break;
    case Format::lv2:
        const auto text = state.toString();
        const auto place = findLongestQuote (text);
        encoded = text.substring (place.getStart(), place.getEnd());
    }

    return bytes.fromBase64Encoding (encoded) ? bytes : juce::MemoryBlock();
}

juce::MemoryBlock wrapState (const juce::AudioPluginInstance& instance,
                             const juce::MemoryBlock& state, const juce::MemoryBlock& bytes)
{
    switch (getFormat (instance))
    {
    case Format::vst2:
        return wrapInFxb (state, bytes);
    case Format::vst3:
        return wrapInXml (state, bytes);
    case Format::lv2:
        return wrapInTurtle (state, bytes);
    case Format::other:
        break;
    }

    return bytes;
}

} // namespace validate
