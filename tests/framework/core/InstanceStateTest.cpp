// The chunk that hosts keep: its exact form, what it brings back, and what broken ones may not do.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/XmlReader.h"
#include "framework/core/XmlWriter.h"
#include "framework/midi/ParamsMidiMapper.h"
#include "tests/support/PresetTest.h"

#include <cmath>

using namespace zembra;

namespace
{

class InstanceStateTest : public PresetTest
{
protected:
    static juce::MemoryBlock save (VorloProcessor& source)
    {
        juce::MemoryBlock chunk;
        source.getStateInformation (chunk);
        return chunk;
    }

    static void load (VorloProcessor& target, const juce::MemoryBlock& chunk)
    {
        target.setStateInformation (chunk.getData(), static_cast<int> (chunk.getSize()));
    }

    /** Loads XML text, packed as hosts keep it, well-formed or not. */
    static void loadText (VorloProcessor& target, const juce::String& text)
    {
        juce::MemoryOutputStream packed;
        packed.writeInt (static_cast<int> (XmlWriter::packedMagic));
        packed.writeInt (static_cast<int> (text.getNumBytesAsUTF8()));
        packed.write (text.toRawUTF8(), text.getNumBytesAsUTF8() + 1);
        load (target, packed.getMemoryBlock());
    }

    static juce::String toText (const juce::MemoryBlock& chunk)
    {
        return juce::String::fromUTF8 (static_cast<const char*> (chunk.getData()) + 8,
                                       static_cast<int> (chunk.getSize()) - 9);
    }

    /** Gives every parameter a value of its own inside its range. */
    static void randomise (VorloProcessor& target, juce::Random& random)
    {
        for (auto* param : target.getParamSet())
            param->setValue (param->getMinValue() + random.nextDouble() * param->getRange(),
                             sourceHost);
    }

    static void expectAllInRange (VorloProcessor& target, const juce::String& what)
    {
        for (const auto* param : target.getParamSet())
        {
            EXPECT_GE (param->getValue(), param->getMinValue()) << param->getId() << what;
            EXPECT_LE (param->getValue(), param->getMaxValue()) << param->getId() << what;
        }
    }

    std::unique_ptr<VorloProcessor> processor = makeProcessor();
};

TEST_F (InstanceStateTest, HasItsExactForm)
{
    const auto file = writeUser ("a", "drive=\"10\"");
    processor->getPresetFileManager().loadPreset (file, nullptr);
    processor->getParamsMidiMapper().setMapping (7, "crush");
    processor->getParamSet().getParam (juce::String ("wet"))->changeFrozen (true);
    processor->getPreferencesStateManager().getValues().set ("key", "text");
    processor->getPreferencesStateManager().getValues().set ("not a name", "lost");
    processor->setPluginEditorWidth (750);
    processor->setMidiChannel (3);
    const auto text = toText (save (*processor));
    const auto element = [&text] (const juce::String& tag)
    {
        return text.fromFirstOccurrenceOf ("<" + tag + " ", true, false)
            .upToFirstOccurrenceOf (">", true, false);
    };

    EXPECT_TRUE (text.startsWith (
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?> <Vorlo pluginEditorWidth=\"750\" "
        "pluginEditorHeight=\"-1\" isMidiEnabled=\"0\" isMidiProgramChangeEnabled=\"0\" "
        "ccMidiChan=\"3\"><INSTANCEPREFS key=\"text\"/><FROZENPARAMS dry=\"0\" wet=\"1\" "))
        << text;
    EXPECT_TRUE (element ("PARAMS").startsWith ("<PARAMS dry=\"-3.00000000000000000000\" "));
    EXPECT_TRUE (element ("PARAMS").endsWith (" lfoWaveform=\"0.00000000000000000000\"/>"));
    EXPECT_TRUE (text.contains ("/><PARAMSLastLoadedPreset preset=\"" + file.getFullPathName()
                                + "\" dirty=\"0\"/><MIDIMAPPING crush=\"7\"/></Vorlo>"))
        << text;
}

TEST_F (InstanceStateTest, ComesBackInAnotherInstance)
{
    const auto file = writeUser ("a", "drive=\"10\"");
    const auto map = folders.midiUser.getChildFile ("map.ompreset");
    processor->getPresetFileManager().loadPreset (file, nullptr);
    edit (*processor, "drive", 64.0);
    processor->getParamsMidiMapper().setMapping (7, "crush");
    ASSERT_TRUE (processor->getMidiPresetFileManager().savePresetToFile (map));
    processor->getParamSet().getParam (juce::String ("drive"))->changeFrozen (true);
    processor->setPluginEditorHeight (400);
    processor->setMidiEnabled (true);
    processor->setMidiProgramChangeEnabled (true);
    processor->setMidiChannel (16);
    const auto chunk = save (*processor);

    const auto other = makeProcessor();
    auto& frozen = *other->getParamSet().getParam (juce::String ("crush"));
    frozen.changeFrozen (true);
    edit (*other, "crush", 12.0);
    load (*other, chunk);
    EXPECT_EQ (get (*other, "drive"), 64.0);
    EXPECT_EQ (get (*other, "crush"), 0.0) << "frozen or not";
    EXPECT_FALSE (frozen.isFrozen());
    EXPECT_TRUE (other->getParamSet().getParam (juce::String ("drive"))->isFrozen());
    EXPECT_EQ (other->getParamsMidiMapper().getMapping ("crush"), 7);
    EXPECT_EQ (other->getPluginEditorHeight(), 400);
    EXPECT_TRUE (other->isMidiEnabled() && other->isMidiProgramChangeEnabled());
    EXPECT_EQ (other->getMidiChannel(), 16);
    EXPECT_EQ (other->getPresetFileManager().getCurrentPresetPath(), file.getFullPathName());
    EXPECT_TRUE (other->getPresetFileManager().isDirty());
    EXPECT_EQ (other->getMidiPresetFileManager().getCurrentPresetPath(), map.getFullPathName());
    EXPECT_FALSE (other->getMidiPresetFileManager().isDirty());
    EXPECT_EQ (save (*other), chunk);
}

TEST_F (InstanceStateTest, LeavesAloneWhatItDoesNotHold)
{
    edit (*processor, "drive", 20.0);
    processor->getParamsMidiMapper().setMapping (7, "crush");
    processor->getPreferencesStateManager().getValues().set ("key", "text");
    processor->getParamSet().getParam (juce::String ("drive"))->changeFrozen (true);
    loadText (*processor, "<vORLO/>");
    EXPECT_EQ (get (*processor, "drive"), 20.0);
    EXPECT_FALSE (processor->getParamSet().getParam (juce::String ("drive"))->isFrozen());
    EXPECT_EQ (processor->getParamsMidiMapper().getMapping ("crush"), 7);
    EXPECT_EQ (processor->getPreferencesStateManager().getValues()["KEY"], "text");

    loadText (*processor, "<Vorlo><PARAMS drive=\"30\"/></Vorlo>");
    EXPECT_EQ (get (*processor, "drive"), 30.0);
}

TEST_F (InstanceStateTest, RoundTripsRandomStates)
{
    juce::Random random (1);

    for (int i = 0; i < 200; ++i)
    {
        randomise (*processor, random);
        const auto next = makeProcessor();
        load (*next, save (*processor));

        for (int p = 0; p < processor->getParamSet().getNumParams(); ++p)
        {
            const auto& before = *processor->getParamSet().getParam (p);
            EXPECT_NEAR (next->getParamSet().getParam (p)->getValue(), before.getValue(),
                         before.getStep() * 0.25 + std::abs (before.getValue()) * 1e-7)
                << before.getId();
        }

        const auto chunk = save (*next), fresh = save (*next);
        const auto third = makeProcessor();
        load (*third, chunk);
        EXPECT_EQ (save (*third), chunk);
    }
}

TEST_F (InstanceStateTest, IgnoresForeignChunks)
{
    edit (*processor, "drive", 20.0);
    processor->getParamSet().getParam (juce::String ("drive"))->changeFrozen (true);
    const auto before = save (*processor);
    const juce::String texts[] = { "<Vorlo2><PARAMS drive=\"9\"/></Vorlo2>",
                                   "<PARAMS drive=\"9\"/>",
                                   "<Vorlo><PARAMS drive=\"9\"/>",
                                   "<!DOCTYPE Vorlo><Vorlo/>",
                                   "<Vorlo><PARAMS drive=\"9\" drive=\"8\"/></Vorlo>",
                                   "",
                                   "rubbish",
                                   juce::String::repeatedString ("<a>", 100'000) };

    for (const auto& text : texts)
    {
        loadText (*processor, text);
        EXPECT_EQ (save (*processor), before) << text.substring (0, 40);
    }

    juce::MemoryBlock rubbish (10'000'000);
    juce::Random random (2);
    random.fillBitsRandomly (rubbish.getData(), rubbish.getSize());
    load (*processor, rubbish);
    rubbish.copyFrom (before.getData(), 0, 8);
    load (*processor, rubbish);
    load (*processor, {});
    processor->setStateInformation (nullptr, 0);
    processor->setStateInformation (before.getData(), -5);
    EXPECT_EQ (save (*processor), before);
}

TEST_F (InstanceStateTest, RefusesEveryChunkThatIsCutShort)
{
    juce::Random random (3);
    randomise (*processor, random);
    const auto whole = save (*processor);
    const auto other = makeProcessor();
    const auto before = save (*other);

    // The last byte is the zero after the text.
    for (size_t size = 0; size < whole.getSize() - 1; ++size)
    {
        other->setStateInformation (whole.getData(), static_cast<int> (size));
        ASSERT_EQ (save (*other), before) << size;
    }

    other->setStateInformation (whole.getData(), static_cast<int> (whole.getSize()) - 1);
    EXPECT_NE (save (*other), before);
}

TEST_F (InstanceStateTest, SurvivesFlippedBits)
{
    juce::Random random (4);
    randomise (*processor, random);
    const auto whole = save (*processor);
    const auto other = makeProcessor();

    for (int i = 0; i < 20'000; ++i)
    {
        auto chunk = whole;

        for (int flips = 1 + random.nextInt (3); --flips >= 0;)
            chunk.setBitRange (
                static_cast<size_t> (random.nextInt (static_cast<int> (chunk.getSize()) * 8)), 1,
                random.nextInt (2));

        load (*other, chunk);
        expectAllInRange (*other, " after flips");
    }
}

TEST_F (InstanceStateTest, TakesNoValueOutOfRange)
{
    const auto most = juce::String (100.0);
    const std::pair<const char*, double> table[] = {
        { "nan", 50 },    { "-nan", 50 },     { "inf", 100 },   { "-inf", 0 },
        { "1e308", 100 }, { "-1e308", 0 },    { "1e999", 100 }, { "1e99999", 50 },
        { "", 0 },        { "-1", 0 },        { "1e-320", 0 },  { "x", 0 },
        { "0x10", 0 },    { "  12.5", 12.5 }, { "7,5", 7 },     { "100.0000001", 100 },
    };

    for (const auto& [text, expected] : table)
    {
        loadText (*processor, "<Vorlo><PARAMS drive=\"50\"/></Vorlo>");
        juce::String attributes;

        for (const auto* param : processor->getParamSet())
            attributes << " " << param->getId() << "=\"" << text << "\"";

        loadText (*processor, "<Vorlo pluginEditorWidth=\"" + juce::String (text)
                                  + "\" ccMidiChan=\"" + text + "\"><PARAMS" + attributes
                                  + "/><FROZENPARAMS" + attributes + "/><MIDIMAPPING" + attributes
                                  + "/></Vorlo>");
        EXPECT_FLOAT_EQ (static_cast<float> (get (*processor, "drive")),
                         static_cast<float> (expected))
            << text;
        expectAllInRange (*processor, text);
    }
}

TEST_F (InstanceStateTest, DoesNotGrowWithoutEndFromForeignPreferences)
{
    for (int chunk = 0; chunk < 40; ++chunk)
    {
        juce::XmlElement root ("Vorlo");
        auto* prefs = root.createNewChildElement ("INSTANCEPREFS");

        for (int key = 0; key < 20; ++key)
            prefs->setAttribute (juce::Identifier ("k" + juce::String (chunk * 20 + key)),
                                 juce::String::repeatedString ("x", key * 100));

        juce::MemoryBlock packed;
        XmlWriter::pack (root, packed);
        load (*processor, packed);
    }

    edit (*processor, "drive", 44.0);
    const auto other = makeProcessor();
    load (*other, save (*processor));
    EXPECT_EQ (get (*other, "drive"), 44.0) << "the chunk can still be read";
    EXPECT_LE (processor->getPreferencesStateManager().getValues().size(), 256);
}

TEST_F (InstanceStateTest, CarriesPathsAndWordsOfAnyKind)
{
    const auto file = writeUser (juce::CharPointer_UTF8 ("\xe2\x99\xaa & <'\"> \xf0\x9f\x98\x80"));
    const auto odd = writeUser ("bell \x07 and\nline");
    processor->getPresetFileManager().loadPreset (file, nullptr);
    const auto other = makeProcessor();
    load (*other, save (*processor));
    EXPECT_EQ (other->getPresetFileManager().getCurrentPresetPath(), file.getFullPathName());

    // A path that XML can't hold costs the name, not the values.
    processor->getPresetFileManager().loadPreset (odd, nullptr);
    EXPECT_EQ (processor->getPresetFileManager().getRecentPresets().getNumFiles(), 1);
    edit (*processor, "drive", 44.0);
    load (*other, save (*processor));
    EXPECT_EQ (get (*other, "drive"), 44.0);
}

} // namespace
