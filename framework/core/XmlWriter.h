// XML trees as text that every reader accepts.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

namespace zembra
{

/** Writes trees whose texts may hold anything a user types or a file system allows. Characters that
    XML 1.0 has no way to express (control characters but tab and line ends, surrogates, U+FFFE,
    U+FFFF) are left out: a file with one of them would be refused by XmlReader, and the whole state
    lost with it. [any thread but audio]
*/
struct XmlWriter
{
    static constexpr juce::uint32 packedMagic = 0x21324356;
    static constexpr int packedHeaderBytes = 8;

    /** Takes out of the tree what can't be written: illegal characters, and text that stands beside
        elements, on which JUCE's one-line writing crashes. None of our formats has such text.
    */
    static void makeWritable (juce::XmlElement& tree);

    static juce::String toText (juce::XmlElement& tree, const juce::XmlElement::TextFormat& format);

    /** Replaces a file with the tree as a document, in one step. False, with the old file whole, if
        it can't be written or is too big to be read again.
    */
    static bool write (juce::XmlElement& tree, const juce::File& file);

    /** Replaces the contents of `destination` with the tree in the packing that JUCE gives chunks:
        a magic number and the length of the text, both 32 bits little-endian, then the text as
        UTF-8 on one line and a zero.
    */
    static void pack (juce::XmlElement& tree, juce::MemoryBlock& destination);
};

} // namespace zembra
