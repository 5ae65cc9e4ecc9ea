// Loading, undo, freezing, the dirty mark, states, saving and start-up of presets.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/XmlReader.h"
#include "tests/support/FullDisk.h"
#include "tests/support/PresetTest.h"

using namespace zembra;

namespace
{

class PresetLoadingTest : public PresetTest
{
protected:
    void loadUndoably (const juce::File& file)
    {
        manager.loadPreset (file, &processor->getUndoManager());
    }

    Param& param (const char* id) { return *processor->getParamSet().getParam (juce::String (id)); }

    bool take (const juce::String& text, const juce::File& file = {})
    {
        return manager.loadStateFrom (XmlReader::parse (text).get(), file);
    }

    std::unique_ptr<VorloProcessor> processor = makeProcessor();
    PresetFileManager& manager = processor->getPresetFileManager();
    juce::UndoManager& undo = processor->getUndoManager();
    PresetLog log{ manager };
    const juce::File a = writeUser ("a", "drive=\"10\" crush=\"20\""),
                     b = writeUser ("b", "drive=\"30\"");
};

TEST_F (PresetLoadingTest, TakesValuesNameAndPlaceInTheRecents)
{
    edit (*processor, "wet", -10.0);
    EXPECT_EQ (log.take(), "dirty:");
    manager.loadPreset (a, nullptr);
    EXPECT_EQ (log.take(), "loaded:a recents:1 clean:a");
    EXPECT_EQ (get (*processor, "drive"), 10.0);
    EXPECT_EQ (get (*processor, "wet"), -3.0) << "not in the file: back to its default";
    undo.clearUndoHistory();

    manager.loadPreset (a, &undo);
    EXPECT_EQ (log.take(), "") << "loaded and unchanged";
    EXPECT_FALSE (undo.canUndo());
    manager.loadPreset (b, nullptr);
    EXPECT_EQ (log.take(), "dirty:a loaded:b recents:2 clean:b");
}

TEST_F (PresetLoadingTest, RevertsAChangedPreset)
{
    manager.loadPreset (a, nullptr);
    edit (*processor, "drive", 70.0);
    edit (*processor, "drive", 80.0);
    log.take();
    manager.loadPreset (a, nullptr);
    EXPECT_EQ (get (*processor, "drive"), 10.0);
    EXPECT_FALSE (manager.isDirty());
    EXPECT_EQ (log.take(), "loaded:a recents:1 clean:a");
}

TEST_F (PresetLoadingTest, UndoesALoadWithNameAndMark)
{
    loadUndoably (a);
    edit (*processor, "crush", 55.0);
    loadUndoably (b);
    EXPECT_EQ (get (*processor, "crush"), 0.0);
    log.take();

    ASSERT_TRUE (undo.undo());
    EXPECT_EQ (get (*processor, "crush"), 55.0);
    EXPECT_EQ (get (*processor, "drive"), 10.0);
    EXPECT_EQ (manager.getCurrentPresetPath(), a.getFullPathName());
    EXPECT_TRUE (manager.isDirty());
    ASSERT_TRUE (undo.redo());
    EXPECT_EQ (get (*processor, "drive"), 30.0);
    EXPECT_EQ (manager.getCurrentPresetPath(), b.getFullPathName());
}

TEST_F (PresetLoadingTest, UndoesTheFirstLoadButForTheName)
{
    edit (*processor, "crush", 55.0);
    loadUndoably (a);
    ASSERT_TRUE (undo.undo());
    EXPECT_EQ (get (*processor, "crush"), 55.0);
    EXPECT_EQ (get (*processor, "drive"), 0.0);
    EXPECT_EQ (manager.getCurrentPresetPath(), a.getFullPathName());
}

TEST_F (PresetLoadingTest, SparesFrozenParametersInLoadUndoAndPaste)
{
    param ("drive").changeFrozen (true);
    loadUndoably (a);
    EXPECT_EQ (get (*processor, "drive"), 0.0);
    EXPECT_EQ (get (*processor, "crush"), 20.0);
    undo.beginNewTransaction();
    edit (*processor, "drive", 5.0);
    ASSERT_TRUE (undo.undo());
    ASSERT_TRUE (undo.undo());
    EXPECT_EQ (get (*processor, "crush"), 0.0);
    EXPECT_EQ (get (*processor, "drive"), 0.0);
    edit (*processor, "drive", 6.0);
    manager.loadStateText ("<Vorlo><PARAMS drive=\"90\"/></Vorlo>");
    EXPECT_EQ (get (*processor, "drive"), 6.0);
}

TEST_F (PresetLoadingTest, IgnoresFilesWithoutItsElement)
{
    const auto other = folders.user.getChildFile ("other.ompreset");
    other.replaceWithText ("<Vorlo author=\"X\"><MIDIMAPPING/></Vorlo>");
    manager.loadPreset (a, nullptr);
    manager.setAuthor ("me");
    log.take();
    manager.loadPreset (other, nullptr);
    EXPECT_EQ (log.take(), "");
    EXPECT_EQ (manager.getAuthor(), "me");
    EXPECT_EQ (manager.getCurrentPresetPath(), a.getFullPathName());
    EXPECT_FALSE (take ("<Vorlo/>"));
    EXPECT_FALSE (manager.loadStateFrom (nullptr, a));
}

TEST_F (PresetLoadingTest, MarksTheFirstChangeOnly)
{
    manager.loadPreset (a, nullptr);
    log.take();
    edit (*processor, "drive", 50.0);
    edit (*processor, "crush", 50.0);
    manager.setDescription ("text");
    EXPECT_EQ (log.take(), "dirty:a");
    undo.undo();
    EXPECT_TRUE (manager.isDirty()) << "the mark doesn't fall back";

    manager.loadPreset (b, nullptr);
    log.take();
    manager.setAuthor ("me");
    EXPECT_EQ (log.take(), "dirty:b");
}

TEST_F (PresetLoadingTest, TellsTheMarkOfRealtimeChangesLater)
{
    manager.loadPreset (a, nullptr);
    log.take();
    processor->setParameter (processor->getParamSet().indexOf (&param ("drive")), 0.5f);
    EXPECT_TRUE (manager.isDirty());
    EXPECT_EQ (log.take(), "");
    processor->deliverRealtimeChanges();
    EXPECT_EQ (log.take(), "dirty:a");
    processor->deliverRealtimeChanges();
    EXPECT_EQ (log.take(), "");
}

TEST_F (PresetLoadingTest, WelcomesAListenerWithThePreset)
{
    manager.loadPreset (a, nullptr);
    PresetLog late (manager);
    EXPECT_EQ (late.take(), "loaded:a clean:a");
    a.deleteFile();
    PresetLog later (manager);
    EXPECT_EQ (later.take(), "") << "the file is gone";
}

TEST_F (PresetLoadingTest, RestoresAStateOverThePresetItNames)
{
    const auto state = "<s><PARAMS drive=\"77\" crush=\"20\"/><PARAMSLastLoadedPreset preset=\""
                       + a.getFullPathName() + "\" dirty=\"1\"/></s>";
    EXPECT_TRUE (take (state));
    EXPECT_EQ (get (*processor, "drive"), 77.0);
    EXPECT_EQ (log.take(), "dirty: loaded:a recents:1 clean:a loaded:a dirty:a dirty:a");
    EXPECT_TRUE (manager.isDirty());

    juce::XmlElement again ("s");
    manager.writeStateTo (again);
    EXPECT_EQ (again.getChildElement (1)->toString (
                   juce::XmlElement::TextFormat().singleLine().withoutHeader()),
               "<PARAMSLastLoadedPreset preset=\"" + a.getFullPathName() + "\" dirty=\"1\"/>");
}

TEST_F (PresetLoadingTest, KeepsItsNameWhenAStateNamesNothingUsable)
{
    manager.loadPreset (b, nullptr);

    for (const auto* path : { "/nowhere/x.ompreset", "relative.ompreset", "", "~", "~root/x",
                              "/dev/zero", "/", "//", "/\n" })
    {
        juce::XmlElement state ("s");
        state.createNewChildElement ("PARAMS")->setAttribute ("drive", 66);
        state.createNewChildElement ("PARAMSLastLoadedPreset")->setAttribute ("preset", path);
        EXPECT_TRUE (manager.loadStateFrom (&state, {})) << path;
        EXPECT_EQ (manager.getCurrentPresetPath(), b.getFullPathName()) << path;
        EXPECT_EQ (get (*processor, "drive"), 66.0) << path;
        EXPECT_FALSE (manager.isDirty()) << path;
    }
}

TEST_F (PresetLoadingTest, EndsWhenPresetsNameEachOther)
{
    const auto link = [this] (const juce::File& from, const juce::File& to, int drive)
    {
        from.replaceWithText ("<Vorlo><PARAMS drive=\"" + juce::String (drive)
                              + "\"/><PARAMSLastLoadedPreset dirty=\"1\" preset=\""
                              + to.getFullPathName() + "\"/></Vorlo>");
    };

    link (a, a, 41);
    manager.loadPreset (a, nullptr);
    EXPECT_EQ (get (*processor, "drive"), 41.0);
    EXPECT_FALSE (manager.isDirty());
    link (a, b, 42);
    link (b, a, 43);
    manager.loadPreset (b, nullptr);
    EXPECT_EQ (get (*processor, "drive"), 43.0);
    EXPECT_EQ (manager.getCurrentPresetPath(), b.getFullPathName());
}

TEST_F (PresetLoadingTest, SavesAndReadsStraightBack)
{
    const auto file = folders.user.getChildFile ("Bank/saved.ompreset");
    edit (*processor, "lowpassFreq", 1234.5);
    manager.setAuthor (juce::CharPointer_UTF8 ("J\xc3\xbcrgen\x01 <&>"));
    log.take();
    EXPECT_FALSE (manager.savePresetToFile (file)) << "no such folder";
    EXPECT_EQ (log.take(), "");
    file.getParentDirectory().createDirectory();
    EXPECT_TRUE (manager.savePresetToFile (file));
    EXPECT_EQ (log.take(), "saved:saved loaded:saved recents:1 clean:saved");
    EXPECT_TRUE (manager.getUserPresets().contains (file.getFullPathName()));
    EXPECT_EQ (manager.readAuthor (file), juce::CharPointer_UTF8 ("J\xc3\xbcrgen <&>"));

    const auto root = XmlReader::parse (file);
    ASSERT_NE (root, nullptr);
    EXPECT_EQ (root->getTagName(), "Vorlo");
    EXPECT_EQ (root->getAttributeName (0) + root->getAttributeName (1), "companyversion");
    EXPECT_FALSE (root->hasAttribute ("description"));
    EXPECT_EQ (root->getNumChildElements(), 1);
    EXPECT_EQ (root->getFirstChildElement()->getNumAttributes(), 23);
    EXPECT_EQ (root->getFirstChildElement()->getStringAttribute ("lowpassFreq"),
               "1234.50000000000000000000");
}

TEST_F (PresetLoadingTest, KeepsTheOldPresetWhenASaveFails)
{
    const auto before = a.loadFileAsString();
    manager.loadPreset (a, nullptr);
    edit (*processor, "drive", 99.0);
    log.take();

    {
        const FullDisk fullDisk;
        EXPECT_FALSE (manager.savePresetToFile (a));
    }

    EXPECT_EQ (a.loadFileAsString(), before);
    EXPECT_TRUE (manager.isDirty());
    EXPECT_EQ (log.take(), "");
    EXPECT_EQ (folders.user.getNumberOfChildFiles (juce::File::findFiles), 2)
        << "nothing is left over";

    manager.setDescription (juce::String::repeatedString ("long ", XmlReader::maxBytes / 5));
    EXPECT_FALSE (manager.savePresetToFile (a)) << "it couldn't be read again";
    EXPECT_EQ (a.loadFileAsString(), before);
    manager.setDescription ({});
    EXPECT_TRUE (manager.savePresetToFile (a));
    EXPECT_FALSE (manager.isDirty());
}

TEST_F (PresetLoadingTest, CopiesAndPastesText)
{
    manager.loadPreset (a, nullptr);
    manager.setAuthor ("me");
    const auto text = manager.getStateText();
    EXPECT_TRUE (text.startsWith ("<Vorlo author=\"me\">")) << text;
    EXPECT_FALSE (text.contains ("LastLoadedPreset"));
    manager.loadPreset (b, nullptr);
    log.take();
    manager.loadStateText (text);
    EXPECT_EQ (get (*processor, "drive"), 10.0);
    EXPECT_EQ (manager.getAuthor(), "me");
    EXPECT_EQ (manager.getCurrentPresetPath(), b.getFullPathName());
    EXPECT_EQ (log.take(), "dirty:b") << "no name and no recent entry";

    manager.loadStateText ("<Other><PARAMS drive='3'/></Other>");
    EXPECT_EQ (get (*processor, "drive"), 3.0) << "under any root";
    EXPECT_EQ (manager.getAuthor(), "");

    for (const auto* rubbish : { "", "hello", "<PARAMS drive='9'/>", "<a><PARAMS drive='9'/>" })
        manager.loadStateText (rubbish);

    EXPECT_EQ (get (*processor, "drive"), 3.0);
}

TEST_F (PresetLoadingTest, StartsWithTheDefaultPresetAndThenTheDefaultMarks)
{
    param ("drive").changeFrozen (true);
    processor->getSettings().saveFrozenStates();
    manager.setDefaultPreset (a.getFullPathName());
    EXPECT_EQ (log.take(), "") << "it isn't loaded now";
    ASSERT_TRUE (processor->getSettings().flush());

    const auto next = makeProcessor();
    EXPECT_EQ (get (*next, "drive"), 10.0) << "loaded before the mark";
    EXPECT_TRUE (next->getParamSet().getParam (juce::String ("drive"))->isFrozen());
    EXPECT_EQ (next->getPresetFileManager().getCurrentPresetPath(), a.getFullPathName());
    EXPECT_FALSE (next->getPresetFileManager().isDirty());
    EXPECT_EQ (next->getParameterDefaultValue (5), 0.0f) << "defaults change in AAX alone";
}

TEST_F (PresetLoadingTest, GivesAaxHostsTheDefaultPresetAsDefaults)
{
    const auto wild = writeUser ("wild", "drive=\"10\" crush=\"1e9\" downsamp=\"nan\"");
    manager.setDefaultPreset (wild.getFullPathName());
    ASSERT_TRUE (processor->getSettings().flush());
    juce::AudioProcessor::setTypeOfNextNewPlugin (juce::AudioProcessor::wrapperType_AAX);
    const auto next = makeProcessor();
    juce::AudioProcessor::setTypeOfNextNewPlugin (juce::AudioProcessor::wrapperType_Undefined);
    EXPECT_FLOAT_EQ (next->getParameterDefaultValue (5), 0.1f);
    EXPECT_EQ (next->getParameterDefaultValue (7), 1.0f) << "clamped";
    EXPECT_EQ (next->getParameterDefaultValue (9), 0.0f);
}

} // namespace
