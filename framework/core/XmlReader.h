// The one door through which text from outside becomes an XML tree.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

#include <memory>
#include <string_view>

namespace zembra
{

/** Reads XML that anybody may have written: project chunks, preset and settings files, the
    clipboard, the network.

    JUCE's own parser is made for trusted text. This one parses with expat and takes well-formed
    UTF-8 documents only, without document types and entities of their own, within the limits below.
    It needs neither deep recursion nor more memory than a small multiple of the text, and the limits
    are such that no text takes longer than about a tenth of a second. All functions answer null for
    what they refuse. [any thread but audio]
*/
struct XmlReader
{
    static constexpr size_t maxBytes = 2 * 1024 * 1024;
    static constexpr int maxDepth = 64;
    static constexpr int maxElements = 2000; ///< elements and runs of text together
    static constexpr int maxAttributes = 5000;
    static constexpr int maxAttributesPerElement = 500;
    static constexpr size_t maxNameBytes = 128;

    static std::unique_ptr<juce::XmlElement> parse (std::string_view utf8);
    static std::unique_ptr<juce::XmlElement> parse (const juce::String& text);

    /** Reads a regular file; anything else (a folder, a pipe, a device) is refused unopened. */
    static std::unique_ptr<juce::XmlElement> parse (const juce::File& file);

    /** Unpacks what XmlWriter::pack() made: a magic number, a length, the text. The length may be
        shorter than the data, whose rest is then ignored, or longer, when the data counts.
    */
    static std::unique_ptr<juce::XmlElement> unpack (const void* data, int sizeInBytes);

    /** An attribute as a number, as JUCE reads one: what follows the number is ignored, and a text
        without a number is 0. A text that no double was ever written as (an exponent of more than
        four digits, more than a hundred characters) is a NaN, as is "nan"; "inf" is infinite.
    */
    static double getNumber (const juce::XmlElement& element, const juce::String& attribute,
                             double fallback);

    /** An attribute as a whole number, clamped to the range of int. */
    static int getInt (const juce::XmlElement& element, const juce::String& attribute,
                       int fallback);
};

} // namespace zembra
