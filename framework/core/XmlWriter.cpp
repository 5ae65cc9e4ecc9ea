// Cleaning and writing of XML trees.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/XmlWriter.h"

#include "framework/core/AtomicFile.h"
#include "framework/core/XmlReader.h"

#include <vector>

namespace zembra
{

namespace
{

bool isLegal (juce::juce_wchar character)
{
    const auto code = static_cast<juce::uint32> (character); // NOLINT(bugprone-signed-char-misuse)

    if (code < 0x20)
        return character == L'\t' || character == L'\n' || character == L'\r';

    return code < 0xd800 || (code > 0xdfff && code < 0xfffe) || (code > 0xffff && code <= 0x10ffff);
}

bool isLegal (const juce::String& text)
{
    for (auto character = text.getCharPointer(); ! character.isEmpty();)
        if (! isLegal (character.getAndAdvance()))
            return false;

    return true;
}

juce::String onlyLegal (const juce::String& text)
{
    juce::MemoryOutputStream result;

    for (auto character = text.getCharPointer(); ! character.isEmpty();)
        if (const auto next = character.getAndAdvance(); isLegal (next))
            result.appendUTF8Char (next);

    return result.toUTF8();
}

bool hasTextBesideElements (const juce::XmlElement& element)
{
    auto hasText = false, hasElement = false;

    for (const auto* child : element.getChildIterator())
        (child->isTextElement() ? hasText : hasElement) = true;

    return hasText && hasElement;
}

void cleanElement (juce::XmlElement& element)
{
    if (hasTextBesideElements (element))
        element.deleteAllTextElements();

    if (element.isTextElement())
    {
        if (! isLegal (element.getText()))
            element.setText (onlyLegal (element.getText()));

        return;
    }

    for (int i = 0; i < element.getNumAttributes(); ++i)
        if (const auto& value = element.getAttributeValue (i); ! isLegal (value))
            element.setAttribute (element.getAttributeName (i), onlyLegal (value));
}

} // namespace

void XmlWriter::makeWritable (juce::XmlElement& tree)
{
    std::vector<juce::XmlElement*> waiting{ &tree };

    while (! waiting.empty())
    {
        auto* element = waiting.back();
        waiting.pop_back();
        cleanElement (*element);

        for (auto* child : element->getChildIterator())
            waiting.push_back (child);
    }
}

juce::String XmlWriter::toText (juce::XmlElement& tree, const juce::XmlElement::TextFormat& format)
{
    makeWritable (tree);
    return tree.toString (format);
}

bool XmlWriter::write (juce::XmlElement& tree, const juce::File& file)
{
    const auto text = toText (tree, {});
    return XmlReader::parse (text) != nullptr && AtomicFile::write (file, text);
}

void XmlWriter::pack (juce::XmlElement& tree, juce::MemoryBlock& destination)
{
    makeWritable (tree);
    juce::MemoryOutputStream output (destination, false);
    const auto text = tree.toString (juce::XmlElement::TextFormat().singleLine());
    const auto numBytes = text.getNumBytesAsUTF8();
    output.writeInt (static_cast<int> (packedMagic));
    output.writeInt (static_cast<int> (numBytes));
    output.write (text.toRawUTF8(), numBytes + 1);
}

} // namespace zembra
