// Walks through trees of folders that try not to end, and what the file cache may remember.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/presets/PresetFolderWalk.h"
#include "framework/presets/PresetFileCache.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace zembra;

namespace
{

class PresetFolderWalkTest : public testing::Test
{
protected:
    juce::String walk (PresetFolderWalk::Hidden hidden = PresetFolderWalk::Hidden::included)
    {
        PresetFolderWalk folders (root, ".ompreset", hidden);
        juce::StringArray found;

        while (folders.next())
            found.add (folders.getFile().getRelativePathFrom (root));

        found.sort (false);
        return found.joinIntoString (" ");
    }

    void put (const juce::String& path) { root.getChildFile (path).create(); }

    void link (const juce::String& path, const juce::File& target)
    {
        ASSERT_TRUE (target.createSymbolicLink (root.getChildFile (path), true));
    }

    TemporaryFolder folder;
    juce::File root = folder.getChild ("root");
};

TEST_F (PresetFolderWalkTest, FindsTheExtensionAtEveryDepth)
{
    EXPECT_EQ (walk(), "") << "no such folder";

    for (const auto* path :
         { "a.ompreset", "b.xml", "c.ompreset.bak", "d/e.ompreset", ".f.ompreset", ".g/h.ompreset",
           "i.ompreset/j.ompreset", "k.OMPRESET" })
        put (path);

    EXPECT_EQ (walk(), ".f.ompreset .g/h.ompreset a.ompreset d/e.ompreset i.ompreset/j.ompreset");
    EXPECT_EQ (walk (PresetFolderWalk::Hidden::skipped),
               "a.ompreset d/e.ompreset i.ompreset/j.ompreset");
}

TEST_F (PresetFolderWalkTest, EndsWhereLinksLoop)
{
    put ("bank/a.ompreset");
    folder.getChild ("outside/b.ompreset").create();
    link ("bank/self", root.getChildFile ("bank"));
    link ("bank/up", root);
    link ("everything", juce::File ("/"));
    link ("nowhere", root.getChildFile ("missing"));
    link ("other", folder.getChild ("outside"));
    link ("again", folder.getChild ("outside"));
    ASSERT_TRUE (root.createSymbolicLink (folder.getChild ("outside/back"), true));
    ::symlink ("loop", root.getChildFile ("loop").getFullPathName().toRawUTF8());
    const auto found = walk();
    EXPECT_TRUE (found == "bank/a.ompreset other/b.ompreset"
                 || found == "again/b.ompreset bank/a.ompreset")
        << found;
}

TEST_F (PresetFolderWalkTest, FollowsALinkedRootAndLinkedFiles)
{
    put ("a.ompreset");
    link ("b.ompreset", root.getChildFile ("a.ompreset"));
    const auto real = root;
    root = folder.getChild ("link");
    ASSERT_TRUE (real.createSymbolicLink (root, true));
    EXPECT_EQ (walk(), "a.ompreset b.ompreset");
}

TEST_F (PresetFolderWalkTest, PassesOverWhatItCannotRead)
{
    put ("a.ompreset");
    put ("locked/b.ompreset");
    const std::string notUtf8 = root.getFullPathName().toStdString() + "/\xff\xfe.ompreset";
    std::filesystem::create_directories (notUtf8);
    std::filesystem::remove (notUtf8);
    fclose (fopen (notUtf8.c_str(), "w"));

    if (::geteuid() == 0)
    {
        EXPECT_EQ (walk(), "a.ompreset locked/b.ompreset") << "the superuser reads everything";
        return;
    }

    const auto locked = root.getChildFile ("locked").getFullPathName();
    ::chmod (locked.toRawUTF8(), 0);
    EXPECT_EQ (walk(), "a.ompreset");
    ::chmod (locked.toRawUTF8(), 0700);
}

TEST_F (PresetFolderWalkTest, SurvivesFoldersThatVanishOnTheWay)
{
    for (int i = 0; i < 200; ++i)
        put (juce::String (i % 20) + "/" + juce::String (i) + ".ompreset");

    PresetFolderWalk folders (root, ".ompreset", PresetFolderWalk::Hidden::included);
    ASSERT_TRUE (folders.next());
    root.deleteRecursively();
    int count = 0;

    while (folders.next())
        ++count;

    EXPECT_LT (count, 200);
}

TEST_F (PresetFolderWalkTest, GoesAsDeepAsPathsCan)
{
    auto deep = root;

    while (deep.getFullPathName().length() < 3000)
        deep = deep.getChildFile (juce::String::repeatedString ("d", 40));

    deep.getChildFile ("a.ompreset").create();
    EXPECT_TRUE (walk().endsWith ("/a.ompreset"));
}

class PresetFileCacheTest : public testing::Test
{
protected:
    PresetFileCacheTest() { cache.clear(); }

    /** Writes with a time long past, and waits for the change of the entry to have settled too. */
    void writeOld (const juce::String& text) const
    {
        file.replaceWithText (text);
        file.setLastModificationTime (juce::Time (2020, 1, 1, 12, 0));
    }

    PresetFileCache& cache = PresetFileCache::get();
    TemporaryFolder folder;
    juce::File file = folder.getChild ("a.ompreset");
};

TEST_F (PresetFileCacheTest, AnswersWhatAFreshParseWould)
{
    EXPECT_FALSE (cache.parses (file));

    // Equal sizes and times, as a careless archive tool leaves them.
    for (const auto& [text, valid] :
         { std::pair ("<a/>", true), { "<a>>", false }, { "<b/>", true } })
    {
        writeOld (text);
        EXPECT_EQ (cache.parses (file), valid) << text;
        EXPECT_EQ (cache.parses (file), valid) << text;
    }

    file.deleteFile();
    EXPECT_FALSE (cache.parses (file));
    file.createDirectory();
    EXPECT_FALSE (cache.parses (file));
}

} // namespace
