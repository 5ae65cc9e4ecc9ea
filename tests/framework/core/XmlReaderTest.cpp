// What the guarded reader takes, what it refuses, and that what the writer writes comes back.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/XmlReader.h"
#include "framework/core/XmlWriter.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <juce_audio_processors/juce_audio_processors.h>

#include <cmath>
#include <limits>
#include <locale.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace zembra;

namespace
{

std::string repeat (const std::string& text, int times)
{
    std::string result;

    for (int i = 0; i < times; ++i)
        result += text;

    return result;
}

std::string makeAttributes (int count)
{
    std::string text;

    for (int i = 0; i < count; ++i)
        text += " a" + std::to_string (i) + "='1'";

    return text;
}

std::string nest (int depth) { return repeat ("<a>", depth) + repeat ("</a>", depth); }

bool accepts (const std::string& text)
{
    return XmlReader::parse (std::string_view (text)) != nullptr;
}

TEST (XmlReader, RefusesWhatIsNoPlainWellFormedDocument)
{
    const std::pair<const char*, std::string> table[] = {
        { "nothing", "" },
        { "white space", " \n" },
        { "no XML", "Vorlo" },
        { "an open tag", "<a>" },
        { "crossed tags", "<a><b></a></b>" },
        { "a second root", "<a/><b/>" },
        { "text after the root", "<a/>x" },
        { "an attribute twice", "<a x='1' x='2'/>" },
        { "an attribute without quotes", "<a x=1/>" },
        { "an unknown entity", "<a>&b;</a>" },
        { "a document type", "<!DOCTYPE a><a/>" },
        { "an entity of its own", "<!DOCTYPE a [<!ENTITY b 'c'>]><a>&b;</a>" },
        { "an external entity", "<!DOCTYPE a [<!ENTITY b SYSTEM '/etc/passwd'>]><a>&b;</a>" },
        { "broken UTF-8", "<a x='\xc3\x28'/>" },
        { "an overlong slash", "<a x='\xc0\xaf'/>" },
        { "a surrogate in UTF-8", "<a x='\xed\xa0\x80'/>" },
        { "a zero byte", std::string ("<a x='\0'/>", 10) },
        { "a control character", "<a x='&#1;'/>" },
        { "UTF-16", std::string ("\xff\xfe<\0a\0/\0>\0", 10) },
        { "instructions without end", "<<? P?>:>4<? P?>:>" },
    };

    for (const auto& [name, text] : table)
        EXPECT_FALSE (accepts (text)) << name;
}

TEST (XmlReader, KeepsItsLimitsToTheLastOne)
{
    const auto manyElements = [] (int count) { return "<r>" + repeat ("<a/>", count) + "</r>"; };
    const auto manyAttributes = [] (int elements)
    {
        return "<r>"
               + repeat ("<a" + makeAttributes (XmlReader::maxAttributesPerElement) + "/>",
                         elements)
               + "</r>";
    };
    const auto sized = [] (size_t bytes)
    { return "<a x='" + std::string (bytes - 9, 'x') + "'/>"; };
    constexpr auto attributeElements =
        XmlReader::maxAttributes / XmlReader::maxAttributesPerElement;

    EXPECT_TRUE (accepts (nest (XmlReader::maxDepth)));
    EXPECT_FALSE (accepts (nest (XmlReader::maxDepth + 1)));
    EXPECT_FALSE (accepts (nest (200'000)));
    EXPECT_FALSE (accepts (repeat ("<a>", 1'000'000)));
    EXPECT_TRUE (accepts (manyElements (XmlReader::maxElements - 1)));
    EXPECT_FALSE (accepts (manyElements (XmlReader::maxElements)));
    EXPECT_TRUE (accepts ("<a" + makeAttributes (XmlReader::maxAttributesPerElement) + "/>"));
    EXPECT_FALSE (accepts ("<a" + makeAttributes (XmlReader::maxAttributesPerElement + 1) + "/>"));
    EXPECT_TRUE (accepts (manyAttributes (attributeElements)));
    EXPECT_FALSE (accepts (manyAttributes (attributeElements + 1)));
    EXPECT_TRUE (accepts (sized (XmlReader::maxBytes)));
    EXPECT_FALSE (accepts (sized (XmlReader::maxBytes + 1)));
    EXPECT_TRUE (accepts ("<" + std::string (XmlReader::maxNameBytes, 'n') + "/>"));
    EXPECT_FALSE (accepts ("<" + std::string (XmlReader::maxNameBytes + 1, 'n') + "/>"));
}

TEST (XmlReader, BuildsTheTreeThatStandsThere)
{
    const auto root = XmlReader::parse (std::string_view (
        "\xef\xbb\xbf<?xml version='1.0' encoding='ISO-8859-1'?>\r\n<!-- c --><Vorlo b='\xc3\xa9'"
        " a='&lt;&quot;&#233;&#x1f600;'>\n <P x=''/>\n one<![CDATA[<two>]]> <Q/> </Vorlo>"));

    ASSERT_NE (root, nullptr);
    EXPECT_EQ (root->getTagName(), "Vorlo");
    EXPECT_EQ (root->getAttributeName (0), "b");
    EXPECT_EQ (root->getAttributeValue (0), juce::CharPointer_UTF8 ("\xc3\xa9"));
    EXPECT_EQ (root->getAttributeValue (1), juce::CharPointer_UTF8 ("<\"\xc3\xa9\xf0\x9f\x98\x80"));
    ASSERT_EQ (root->getNumChildElements(), 3);
    EXPECT_TRUE (root->getChildElement (0)->hasTagName ("P"));
    EXPECT_TRUE (root->getChildElement (0)->hasAttribute ("x"));
    EXPECT_EQ (root->getChildElement (1)->getText().trim(), "one<two>");
    EXPECT_TRUE (root->getChildElement (2)->hasTagName ("Q"));
}

TEST (XmlReader, ReadsRegularFilesOnly)
{
    const TemporaryFolder folder;
    const auto file = folder.getChild ("a.xml"), huge = folder.getChild ("huge.xml"),
               pipe = folder.getChild ("pipe.xml");
    EXPECT_EQ (XmlReader::parse (juce::File()), nullptr);
    EXPECT_EQ (XmlReader::parse (folder.get()), nullptr);
    EXPECT_EQ (XmlReader::parse (file), nullptr);
    EXPECT_EQ (XmlReader::parse (juce::File ("/dev/zero")), nullptr);

    file.create();
    EXPECT_EQ (XmlReader::parse (file), nullptr) << "empty";
    file.replaceWithText ("<a/>");
    EXPECT_NE (XmlReader::parse (file), nullptr);

    huge.replaceWithText ("<a/>");
    ASSERT_EQ (::truncate (huge.getFullPathName().toRawUTF8(), 100'000'000), 0);
    EXPECT_EQ (XmlReader::parse (huge), nullptr);

    ASSERT_EQ (::mkfifo (pipe.getFullPathName().toRawUTF8(), 0600), 0);
    EXPECT_EQ (XmlReader::parse (pipe), nullptr) << "and doesn't wait for a writer";
}

TEST (XmlReader, UnpacksWhatJucePacks)
{
    juce::XmlElement tree ("Vorlo");
    tree.setAttribute ("a", juce::CharPointer_UTF8 ("\xe2\x82\xac & <\n>"));
    juce::MemoryBlock byJuce, byUs;
    juce::AudioProcessor::copyXmlToBinary (tree, byJuce);
    XmlWriter::pack (tree, byUs);
    EXPECT_EQ (byUs, byJuce);

    const auto unpack = [] (const juce::MemoryBlock& block)
    { return XmlReader::unpack (block.getData(), static_cast<int> (block.getSize())); };
    ASSERT_NE (unpack (byUs), nullptr);
    EXPECT_TRUE (unpack (byUs)->isEquivalentTo (&tree, false));

    for (const auto length : { -1, 0, 5, std::numeric_limits<int>::min() })
    {
        auto block = byUs;
        block.copyFrom (&length, 4, 4);
        EXPECT_EQ (unpack (block), nullptr) << length;
    }

    auto longer = byUs;
    const auto most = std::numeric_limits<int>::max();
    longer.copyFrom (&most, 4, 4);
    EXPECT_NE (unpack (longer), nullptr) << "the data ends before the length does";
    longer.append ("rubbish", 7);
    EXPECT_NE (unpack (longer), nullptr) << "the zero ends the text";
    EXPECT_EQ (XmlReader::unpack (nullptr, 100), nullptr);
}

TEST (XmlReader, ReadsNumbersInEveryLocale)
{
    const auto infinite = std::numeric_limits<double>::infinity();
    const std::pair<const char*, double> table[] = {
        { "0.5", 0.5 },    { " -3.25dB", -3.25 }, { "1e3", 1000.0 },     { "", 0.0 },
        { "quiet", 0.0 },  { "1e308", 1e308 },    { "1e999", infinite }, { "-inf", -infinite },
        { "1e-400", 0.0 }, { "0,5", 0.0 },        { "+7", 7.0 },         { "--5", 0.0 },
    };

    juce::XmlElement element ("a");
    const auto* const before = setlocale (LC_ALL, nullptr);
    const std::string saved = before != nullptr ? before : "C";

    for (const auto* locale : { "C", "de_DE.UTF-8" })
    {
        if (setlocale (LC_ALL, locale) == nullptr)
            continue;

        for (const auto& [text, number] : table)
        {
            element.setAttribute ("x", text);
            EXPECT_EQ (XmlReader::getNumber (element, "x", 9.0), number) << text << " " << locale;
        }
    }

    setlocale (LC_ALL, saved.c_str());

    for (const auto& text : { juce::String ("nan"), juce::String ("1e99999999999999999999"),
                              juce::String::repeatedString ("9", 101) })
    {
        element.setAttribute ("x", text);
        EXPECT_TRUE (std::isnan (XmlReader::getNumber (element, "x", 9.0))) << text;
    }

    EXPECT_EQ (XmlReader::getNumber (element, "y", 9.0), 9.0);
}

TEST (XmlReader, ClampsWholeNumbers)
{
    constexpr auto most = std::numeric_limits<int>::max(), least = std::numeric_limits<int>::min();
    const std::pair<const char*, int> table[] = {
        { "750", 750 },
        { " -1", -1 },
        { "12.9", 12 },
        { "", 0 },
        { "no", 0 },
        { "2147483647", most },
        { "2147483648", most },
        { "-2147483648", least },
        { "-99999999999999999999999", least },
        { "99999999999999999999999", most },
    };

    juce::XmlElement element ("a");

    for (const auto& [text, number] : table)
    {
        element.setAttribute ("x", text);
        EXPECT_EQ (XmlReader::getInt (element, "x", 5), number) << text;
    }

    EXPECT_EQ (XmlReader::getInt (element, "y", 5), 5);
}

TEST (XmlWriter, DropsTextBesideElements)
{
    auto tree = XmlReader::parse (std::string_view ("<a><b>one</b>two<c><d/></c></a>"));
    ASSERT_NE (tree, nullptr);
    EXPECT_EQ (
        XmlWriter::toText (*tree, juce::XmlElement::TextFormat().singleLine().withoutHeader()),
        "<a><b>one</b><c><d/></c></a>");
}

TEST (XmlWriter, WritesNothingThatTheReaderWouldRefuse)
{
    for (int code = 1; code <= 0x110000;
         code += code < 0x300 || (code > 0xd000 && code < 0x11000) ? 1 : 257)
    {
        if (! juce::CharPointer_UTF8::canRepresent (static_cast<juce::juce_wchar> (code)))
            continue;

        const auto character = juce::String::charToString (static_cast<juce::juce_wchar> (code));
        juce::XmlElement tree ("a");
        tree.setAttribute ("x", "before" + character + "after");
        tree.createNewChildElement ("b")->addTextElement ("some" + character + "text");
        const auto read = XmlReader::parse (XmlWriter::toText (tree, {}));
        ASSERT_NE (read, nullptr) << code;
        const auto& text = read->getStringAttribute ("x");
        EXPECT_TRUE (text == "before" + character + "after" || text == "beforeafter") << code;

        const auto isLegal = code >= ' ' && (code < 0xd800 || code > 0xdfff) && code < 0xfffe;
        EXPECT_TRUE (! isLegal || text.length() == 12) << code;
    }
}

} // namespace
