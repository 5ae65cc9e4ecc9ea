// Folders, lists, validity, recent files, renaming, deleting and stepping of presets.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/PresetTest.h"

#include <sys/stat.h>

using namespace zembra;

namespace
{

class PresetFileManagerTest : public PresetTest
{
protected:
    /** An instance is made when it is first asked for, after the test has put its files. */
    VorloProcessor& processor()
    {
        if (made == nullptr)
            made = makeProcessor();

        return *made;
    }

    PresetFileManager& manager() { return processor().getPresetFileManager(); }

    juce::String nameList (const juce::StringArray& paths)
    {
        juce::StringArray names;

        for (const auto& path : paths)
            names.add (juce::File (path).getFileNameWithoutExtension());

        names.sort (false);
        return names.joinIntoString (" ");
    }

    std::unique_ptr<VorloProcessor> made;
};

TEST_F (PresetFileManagerTest, MakesItsFolders)
{
    processor();

    for (const auto* path : { "common/Ombrel/Vorlo/presets", "common/Ombrel/Vorlo/DesignersPresets",
                              "common/Ombrel/Vorlo/midi", "user/Ombrel/Vorlo/presets/MIDI Programs",
                              "user/Ombrel/Vorlo/midi" })
        EXPECT_TRUE (folder.getChild (path).isDirectory()) << path;

    EXPECT_EQ (manager().getExtension(), ".ompreset");
    EXPECT_EQ (processor().getMidiPresetFileManager().getDesignersFolder(), juce::File());
    EXPECT_EQ (processor().getMidiPresetFileManager().getUserFolders()[0], folders.midiUser);
}

TEST_F (PresetFileManagerTest, StartsWhereNoFolderCanBeMade)
{
    folder.getChild ("common").replaceWithText ("a file is in the way");
    folder.getChild ("user").replaceWithText ("here too");
    EXPECT_TRUE (manager().getFactoryPresets().isEmpty());
    EXPECT_TRUE (manager().factoryFolderIsEmpty());
    EXPECT_FALSE (manager().savePresetToFile (folders.user.getChildFile ("a.ompreset")));
}

TEST_F (PresetFileManagerTest, TellsPresetsFromOtherFiles)
{
    const std::tuple<const char*, const char*, bool> table[] = {
        { "good.ompreset", "<Vorlo><PARAMS/></Vorlo>", true },
        { "other-root.ompreset", "<Thing/>", true },
        { "nothing-in-it.ompreset", "", false },
        { "broken.ompreset", "<Vorlo><PARAMS></Vorlo>", false },
        { "with-params.xml", "<Thing><PARAMS/></Thing>", true },
        { "no-extension", "<Thing><PARAMS/></Thing>", true },
        { "without-params.xml", "<Thing><MIDIMAPPING/></Thing>", false },
        { "CASE.OMPRESET", "<Thing/>", false },
        { ".hidden.ompreset", "<Vorlo><PARAMS/></Vorlo>", false },
    };

    for (const auto& [name, text, valid] : table)
    {
        const auto file = folder.getChild (name);
        file.replaceWithText (text);
        EXPECT_EQ (manager().isValidPresetFile (file), valid) << name;
    }

    const auto bank = folder.getChild ("bank.ompreset"), pipe = folder.getChild ("pipe.ompreset");
    bank.createDirectory();
    ASSERT_EQ (::mkfifo (pipe.getFullPathName().toRawUTF8(), 0600), 0);
    EXPECT_FALSE (manager().isValidPresetFile (bank));
    EXPECT_FALSE (manager().isValidPresetFile (pipe));
    EXPECT_FALSE (manager().isValidPresetFile (juce::File()));
    EXPECT_FALSE (manager().isValidPresetFile (folder.getChild ("missing.ompreset")));
}

TEST_F (PresetFileManagerTest, ListsWhatIsValidInEachFolder)
{
    write (folders.factory.getChildFile ("Bank/f.ompreset"), "");
    write (folders.designers.getChildFile ("d.ompreset"), "");
    write (folders.midiUser.getChildFile ("m.ompreset"), "");
    writeUser ("u");
    writeUser ("Deep/Deeper/v");
    writeUser ("MIDI Programs/p");
    writeUser (juce::CharPointer_UTF8 ("\xc3\xbc \xe2\x99\xaa \xf0\x9f\x8e\x9b & <x> \"y\""));
    folders.user.getChildFile ("broken.ompreset").replaceWithText ("<");
    folders.user.getChildFile ("text.xml").replaceWithText ("<Vorlo><PARAMS/></Vorlo>");

    EXPECT_EQ (nameList (manager().getFactoryPresets()), "f");
    EXPECT_EQ (nameList (manager().getDesignersPresets()), "d");
    EXPECT_EQ (manager().getUserPresets().size(), 4);
    EXPECT_TRUE (nameList (manager().getUserPresets()).contains ("p u v"));
    EXPECT_EQ (nameList (processor().getMidiPresetFileManager().getUserPresets()), "m");
    EXPECT_FALSE (manager().userFoldersAreEmpty());
    EXPECT_FALSE (manager().designersFolderIsEmpty());
    EXPECT_FALSE (manager().folderHasPresets (juce::File()));

    PresetLog log (manager());
    manager().setDesignersFolder (folders.user);
    EXPECT_EQ (manager().getDesignersPresets().size(), 4);
    manager().setFactoryFolder ({});
    EXPECT_TRUE (manager().getFactoryPresets().isEmpty());
    manager().setUserFolders ({});
    EXPECT_TRUE (manager().userFoldersAreEmpty());
    EXPECT_EQ (log.take(), "designers:presets factory: user:");
}

TEST_F (PresetFileManagerTest, FindsFilesEvenIfTheyAreBroken)
{
    folders.user.getChildFile ("a/b.ompreset").create();
    folders.factory.getChildFile (".hidden.ompreset").create();
    EXPECT_TRUE (manager().folderHasPresets (folders.user));
    EXPECT_TRUE (manager().factoryFolderIsEmpty()) << "hidden ones don't count";
}

TEST_F (PresetFileManagerTest, RemembersTheLastTenPresets)
{
    juce::Array<juce::File> files;

    for (int i = 0; i < 12; ++i)
        files.add (writeUser ("p" + juce::String (i), "drive=\"" + juce::String (i) + "\""));

    for (const auto& file : files)
        manager().loadPreset (file, nullptr);

    EXPECT_EQ (manager().getRecentPresets().getNumFiles(), 10);
    EXPECT_EQ (manager().getRecentPresets().getFile (0), files[11]);
    manager().loadPreset (files[5], nullptr);
    EXPECT_EQ (manager().getRecentPresets().getNumFiles(), 10);
    EXPECT_EQ (manager().getRecentPresets().getFile (0), files[5]);
    EXPECT_EQ (manager().getRecentPresets().getFile (1), files[11]);

    made.reset();
    EXPECT_EQ (manager().getRecentPresets().getFile (0), files[5]) << "a new instance";

    PresetLog log (manager());
    log.take();
    manager().setRecentPresets ("/a\nnot/absolute\n\n/b");
    EXPECT_EQ (manager().getRecentPresets().toString(), "/a\n/b");
    EXPECT_EQ (log.take(), "recents:2");
    EXPECT_EQ (processor().getSettings().getRecentFiles ("PARAMS"), "/a\n/b");
}

TEST_F (PresetFileManagerTest, RenamesAndReloadsTheCurrentPreset)
{
    const auto file = writeUser ("Bank/old", "drive=\"10\"");
    manager().loadPreset (file, nullptr);
    edit (processor(), "drive", 50.0);
    PresetLog log (manager());
    log.take();

    EXPECT_TRUE (manager().renamePreset (file, "new.name"));
    const auto target = file.getSiblingFile ("new.ompreset");
    EXPECT_TRUE (target.existsAsFile());
    EXPECT_FALSE (file.exists());
    EXPECT_EQ (log.take(), "renamed:new from:old recents:0 loaded:new recents:1 clean:new");
    EXPECT_EQ (manager().getCurrentPresetPath(), target.getFullPathName());
    EXPECT_FALSE (manager().isDirty());
    EXPECT_EQ (get (processor(), "drive"), 10.0) << "the edit is dropped with the reload";
    EXPECT_EQ (nameList (manager().getUserPresets()), "new");
}

TEST_F (PresetFileManagerTest, RefusesNamesThatWouldLoseOrMoveAPreset)
{
    const auto file = writeUser ("Bank/a", "drive=\"1\""),
               other = writeUser ("Bank/b", "drive=\"2\"");
    const auto before = other.loadFileAsString();

    for (const auto* name : { "", "  ", "b", "b.ompreset", "../a", "sub/a", "/tmp/a", ".." })
        EXPECT_FALSE (manager().renamePreset (file, name)) << name;

    EXPECT_EQ (other.loadFileAsString(), before);
    EXPECT_TRUE (file.existsAsFile());
    EXPECT_TRUE (manager().renamePreset (file, "a")) << "its own name";
    EXPECT_FALSE (manager().renamePreset (folder.getChild ("missing.ompreset"), "x"));
}

TEST_F (PresetFileManagerTest, LeavesFactoryAndDesignersPresetsAlone)
{
    for (const auto& readOnly : { folders.factory, folders.designers })
    {
        const auto file = write (readOnly.getChildFile ("f.ompreset"), "");
        EXPECT_FALSE (manager().renamePreset (file, "g"));
        EXPECT_FALSE (manager().deletePreset (file));
        EXPECT_TRUE (file.existsAsFile());
    }
}

/** The trash is found through HOME, which is put into the test's folder. */
class PresetTrashTest : public PresetFileManagerTest
{
protected:
    PresetTrashTest() : home (juce::SystemStats::getEnvironmentVariable ("HOME", {}))
    {
        ::setenv ("HOME", folder.get().getFullPathName().toRawUTF8(), 1);
    }

    ~PresetTrashTest() override { ::setenv ("HOME", home.toRawUTF8(), 1); }

    const juce::String home;
};

TEST_F (PresetTrashTest, DeletesIntoTheTrash)
{
    const auto file = writeUser ("gone", "drive=\"1\"");
    manager().loadPreset (file, nullptr);
    PresetLog log (manager());
    log.take();
    EXPECT_FALSE (manager().deletePreset (file)) << "there is no trash";
    EXPECT_TRUE (file.existsAsFile());
    EXPECT_EQ (log.take(), "");

    const auto trash = folder.getChild (".local/share/Trash/files");
    trash.createDirectory();
    EXPECT_TRUE (manager().deletePreset (file));
    EXPECT_FALSE (file.exists());
    EXPECT_TRUE (trash.getChildFile ("gone.ompreset").existsAsFile());
    EXPECT_EQ (log.take(), "deleted:gone recents:0");
    EXPECT_EQ (manager().getCurrentPresetPath(), "");
    EXPECT_TRUE (manager().getUserPresets().isEmpty());
    EXPECT_EQ (get (processor(), "drive"), 1.0);
}

TEST_F (PresetFileManagerTest, MakesBanks)
{
    PresetLog log (manager());
    EXPECT_TRUE (manager().createBank (folders.user.getChildFile ("A/B")));
    EXPECT_TRUE (folders.user.getChildFile ("A/B").isDirectory());
    writeUser ("file");
    EXPECT_FALSE (manager().createBank (folders.user.getChildFile ("file.ompreset/C")));
    EXPECT_EQ (log.take(), "bank:B bank:C");
}

TEST_F (PresetFileManagerTest, StepsThroughTheListOfTheCurrentPreset)
{
    for (const auto* name : { "Bank/a", "Bank/b", "Bank/c" })
    {
        write (folders.factory.getChildFile (juce::String ("F") + name + ".ompreset"), "");
        writeUser (name);
    }

    write (folders.factory.getChildFile ("straight.ompreset"), "");

    for (auto list : { manager().getFactoryPresets(), manager().getUserPresets() })
    {
        // A preset straight in the factory folder isn't in a bank and counts as a user preset.
        list.removeString (folders.factory.getChildFile ("straight.ompreset").getFullPathName());
        auto all = list;

        if (list[0].contains ("common"))
            all = manager().getFactoryPresets();

        for (int i = 0; i < all.size(); ++i)
        {
            if (! list.contains (all[i]))
                continue;

            for (const auto delta : { 1, -1 })
            {
                manager().loadPreset (juce::File (all[i]), nullptr);
                manager().stepPreset (delta);
                EXPECT_EQ (manager().getCurrentPresetPath(),
                           all[(i + delta + all.size()) % all.size()]);
            }
        }
    }

    manager().loadPreset (folders.factory.getChildFile ("straight.ompreset"), nullptr);
    manager().stepPreset (1);
    EXPECT_EQ (manager().getCurrentPresetPath(), manager().getUserPresets()[0]);
    EXPECT_TRUE (processor().getUndoManager().canUndo());
}

TEST_F (PresetFileManagerTest, StepsFromNowhereToTheFirstPresetThereIs)
{
    manager().stepPreset (1);
    EXPECT_EQ (manager().getCurrentPresetPath(), "");
    writeUser ("u");
    manager().scanUserPresets();
    manager().stepPreset (-1);
    EXPECT_EQ (manager().getCurrentPresetPath(), manager().getUserPresets()[0]);

    made.reset();
    write (folders.designers.getChildFile ("d.ompreset"), "");
    manager().stepPreset (1);
    EXPECT_EQ (manager().getCurrentPresetPath(), manager().getDesignersPresets()[0]);
}

TEST_F (PresetFileManagerTest, ReadsWordsOfFilesOldAndNew)
{
    const auto now = writeUser ("now", {}, "author=\"A\" description=\"D\"");
    const auto old = writeUser ("old", "author=\"B\" description=\"E\"");
    const auto none = folder.getChild ("none.xml");
    none.replaceWithText ("<x author='C'/>");
    EXPECT_EQ (manager().readAuthor (now) + manager().readDescription (now), "AD");
    EXPECT_EQ (manager().readAuthor (old) + manager().readDescription (old), "BE");
    EXPECT_EQ (manager().readAuthor (none) + manager().readDescription (none), "");
}

TEST_F (PresetFileManagerTest, TwoInstancesShareAFolder)
{
    const auto other = makeProcessor();
    const auto file = folders.user.getChildFile ("shared.ompreset");
    edit (processor(), "drive", 33.0);
    ASSERT_TRUE (manager().savePresetToFile (file));

    auto& otherManager = other->getPresetFileManager();
    EXPECT_TRUE (otherManager.getUserPresets().isEmpty());
    otherManager.scanUserPresets();
    EXPECT_EQ (nameList (otherManager.getUserPresets()), "shared");
    otherManager.loadPreset (file, nullptr);
    EXPECT_EQ (get (*other, "drive"), 33.0);

    ASSERT_TRUE (manager().renamePreset (file, "moved"));
    otherManager.stepPreset (1);
    EXPECT_EQ (get (*other, "drive"), 33.0) << "its list names a file that is gone";
}

} // namespace
