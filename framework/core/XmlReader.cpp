// Parsing with expat, within limits, into JUCE's tree.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/XmlReader.h"

#include "framework/core/FileStamp.h"
#include "framework/core/XmlWriter.h"

#include <expat.h>

#include <limits>
#include <type_traits>
#include <vector>

namespace zembra
{

namespace
{

juce::String fromUtf8 (std::string_view text)
{
    return juce::String::fromUTF8 (text.data(), static_cast<int> (text.size()));
}

/** Builds the tree from expat's events; stops the parser at the first thing that isn't allowed. */
class TreeBuilder
{
public:
    TreeBuilder()
    {
        XML_SetUserData (parser.get(), this);
        XML_SetElementHandler (parser.get(), startElement, endElement);
        XML_SetCharacterDataHandler (parser.get(), addCharacters);
        XML_SetStartDoctypeDeclHandler (parser.get(), startDoctype);
    }

    std::unique_ptr<juce::XmlElement> build (std::string_view document)
    {
        const auto status =
            XML_Parse (parser.get(), document.data(), static_cast<int> (document.size()), XML_TRUE);
        return status == XML_STATUS_OK && ! refused ? std::move (root) : nullptr;
    }

private:
    struct ParserDeleter
    {
        void operator() (XML_Parser toFree) const { XML_ParserFree (toFree); }
    };

    static TreeBuilder& self (void* data) { return *static_cast<TreeBuilder*> (data); }

    static void XMLCALL startElement (void* data, const XML_Char* name, const XML_Char** attributes)
    {
        self (data).open (name, attributes);
    }

    static void XMLCALL endElement (void* data, const XML_Char*) { self (data).close(); }

    static void XMLCALL addCharacters (void* data, const XML_Char* characters, int length)
    {
        self (data).text.append (characters, static_cast<size_t> (length));
    }

    static void XMLCALL startDoctype (void* data, const XML_Char*, const XML_Char*, const XML_Char*,
                                      int)
    {
        self (data).refuse();
    }

    void refuse()
    {
        refused = true;
        XML_StopParser (parser.get(), XML_FALSE);
    }

    void open (std::string_view name, const XML_Char** attributes)
    {
        if (refused)
            return;

        addText();

        if (++numElements > XmlReader::maxElements || ! isNameShort (name)
            || openElements.size() >= XmlReader::maxDepth)
            return refuse();

        auto element = std::make_unique<juce::XmlElement> (fromUtf8 (name));

        if (! setAttributes (*element, attributes))
            return refuse();

        auto* const opened = element.get();

        if (openElements.empty())
            root = std::move (element);
        else
            openElements.back()->addChildElement (element.release());

        openElements.push_back (opened);
    }

    bool setAttributes (juce::XmlElement& element, const XML_Char** attributes)
    {
        for (int count = 1; *attributes != nullptr; attributes += 2, ++count)
        {
            if (++numAttributes > XmlReader::maxAttributes || ! isNameShort (attributes[0])
                || count > XmlReader::maxAttributesPerElement)
                return false;

            element.setAttribute (juce::Identifier (fromUtf8 (attributes[0])),
                                  fromUtf8 (attributes[1]));
        }

        return true;
    }

    void close()
    {
        if (refused)
            return;

        addText();
        openElements.pop_back();
    }

    /** Hangs the text since the last tag into the tree, unless it is white space. */
    void addText()
    {
        if (text.find_first_not_of (" \t\r\n") != std::string::npos)
        {
            ++numElements;
            openElements.back()->addTextElement (fromUtf8 (text));
        }

        text.clear();
    }

    static bool isNameShort (std::string_view name)
    {
        return name.size() <= XmlReader::maxNameBytes;
    }

    std::unique_ptr<std::remove_pointer_t<XML_Parser>, ParserDeleter> parser{ XML_ParserCreate (
        "UTF-8") };
    std::unique_ptr<juce::XmlElement> root;
    std::vector<juce::XmlElement*> openElements;
    std::string text;
    int numElements = 0, numAttributes = 0;
    bool refused = false;
};

/** False for texts on which JUCE's number reader would overflow its counters. */
bool isPlausibleNumber (const juce::String& text)
{
    constexpr int maxLength = 100, maxExponentDigits = 4;
    const auto exponent =
        text.fromFirstOccurrenceOf ("e", false, true).trimCharactersAtStart ("+-");
    return text.length() <= maxLength
           && exponent.initialSectionContainingOnly ("0123456789").length() <= maxExponentDigits;
}

} // namespace

std::unique_ptr<juce::XmlElement> XmlReader::parse (std::string_view utf8)
{
    // A zero tells UTF-16, which expat would take too.
    if (utf8.empty() || utf8.size() > maxBytes || utf8.find ('\0') != std::string_view::npos)
        return nullptr;

    return TreeBuilder().build (utf8);
}

std::unique_ptr<juce::XmlElement> XmlReader::parse (const juce::String& text)
{
    return parse (std::string_view (text.toRawUTF8(), text.getNumBytesAsUTF8()));
}

std::unique_ptr<juce::XmlElement> XmlReader::parse (const juce::File& file)
{
    const auto stamp = FileStamp::of (file);

    if (! stamp.has_value() || stamp->size > maxBytes)
        return nullptr;

    juce::FileInputStream input (file);
    juce::MemoryBlock bytes;

    // One byte more than allowed, in case the file grows meanwhile.
    if (! input.openedOk() || input.readIntoMemoryBlock (bytes, maxBytes + 1) == 0)
        return nullptr;

    return parse (std::string_view (static_cast<const char*> (bytes.getData()), bytes.getSize()));
}

std::unique_ptr<juce::XmlElement> XmlReader::unpack (const void* data, int sizeInBytes)
{
    const auto* bytes = static_cast<const char*> (data);

    if (data == nullptr || sizeInBytes <= XmlWriter::packedHeaderBytes
        || juce::ByteOrder::littleEndianInt (bytes) != XmlWriter::packedMagic)
        return nullptr;

    const auto announced = static_cast<int> (juce::ByteOrder::littleEndianInt (bytes + 4));

    if (announced <= 0)
        return nullptr;

    const auto available = sizeInBytes - XmlWriter::packedHeaderBytes;
    const std::string_view text (bytes + XmlWriter::packedHeaderBytes,
                                 static_cast<size_t> (std::min (announced, available)));
    return parse (text.substr (0, text.find ('\0')));
}

double XmlReader::getNumber (const juce::XmlElement& element, const juce::String& attribute,
                             double fallback)
{
    if (! element.hasAttribute (attribute))
        return fallback;

    const auto& text = element.getStringAttribute (attribute);
    return isPlausibleNumber (text) ? text.getDoubleValue()
                                    : std::numeric_limits<double>::quiet_NaN();
}

int XmlReader::getInt (const juce::XmlElement& element, const juce::String& attribute, int fallback)
{
    if (! element.hasAttribute (attribute))
        return fallback;

    const auto text = element.getStringAttribute (attribute).trimStart();
    const auto isNegative = text.startsWithChar ('-');
    constexpr juce::int64 limit = std::numeric_limits<int>::max();
    juce::int64 magnitude = 0;

    for (auto digit = text.getCharPointer() + (isNegative ? 1 : 0); digit.isDigit(); ++digit)
        magnitude = std::min (limit + 1, magnitude * 10 + static_cast<int> (*digit - '0'));

    return static_cast<int> (isNegative ? -magnitude : std::min (limit, magnitude));
}

} // namespace zembra
