// The settings file: its form, its sharing between writers, and what bad files do to it.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/Settings.h"
#include "framework/core/AtomicFile.h"
#include "framework/core/ParamFloat.h"
#include "framework/core/XmlReader.h"
#include "tests/support/FullDisk.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <thread>

using namespace zembra;

namespace
{

class SettingsTest : public testing::Test
{
protected:
    std::unique_ptr<SettingsFile> open() { return std::make_unique<SettingsFile> (file, 10); }

    juce::String readBack (const juce::String& key)
    {
        return SettingsFile (file, 10).getValue (key, "missing");
    }

    TemporaryFolder folder;
    juce::File file = folder.getChild ("Ombrel/Vorlo/Vorlo.settings");
};

TEST_F (SettingsTest, AreWrittenAsPropertiesFilesAre)
{
    {
        auto settings = open();
        settings->setValue ("language", "en");
        settings->setValue ("text", "1 < 2 & \"3\"");
        juce::XmlElement recent ("RECENT");
        recent.setAttribute ("recentFiles", "/a\n/b");
        settings->setChild ("PARAMS", "PARAMS", recent);
    }

    juce::PropertiesFile::Options options;
    options.storageFormat = juce::PropertiesFile::storeAsXML;
    juce::PropertiesFile byJuce (file, options);
    EXPECT_EQ (byJuce.getValue ("language"), "en");
    EXPECT_EQ (byJuce.getValue ("text"), "1 < 2 & \"3\"");
    ASSERT_NE (byJuce.getXmlValue ("PARAMS"), nullptr);
    EXPECT_EQ (byJuce.getXmlValue ("PARAMS")->getChildByName ("RECENT")->getStringAttribute (
                   "recentFiles"),
               "/a\n/b");

    byJuce.setValue ("fromJuce", "yes");
    ASSERT_TRUE (byJuce.save());
    EXPECT_EQ (readBack ("fromJuce"), "yes");
    EXPECT_EQ (SettingsFile (file, 10).getTree ("PARAMS")->getTagName(), "PARAMS");
}

TEST_F (SettingsTest, KeepWhatOthersWroteMeanwhile)
{
    auto one = open(), two = open();
    one->setValue ("a", "1");
    two->setValue ("b", "2");
    EXPECT_TRUE (one->flush());
    EXPECT_TRUE (two->flush());
    EXPECT_EQ (readBack ("a"), "1");
    EXPECT_EQ (readBack ("b"), "2");

    // Two children of one tree, by two who don't know of each other.
    juce::XmlElement recent ("RECENT"), preset ("DEFAULT");
    recent.setAttribute ("recentFiles", "/r");
    preset.setAttribute ("defaultPreset", "/d");
    one->setChild ("PARAMS", "PARAMS", recent);
    two->setChild ("PARAMS", "PARAMS", preset);
    EXPECT_TRUE (two->flush());
    EXPECT_TRUE (one->flush());
    const auto tree = open()->getTree ("PARAMS");
    ASSERT_NE (tree, nullptr);
    EXPECT_NE (tree->getChildByName ("RECENT"), nullptr);
    EXPECT_NE (tree->getChildByName ("DEFAULT"), nullptr);

    // Setting what one takes for the present value still undoes what another has set.
    two->setValue ("a", "changed");
    EXPECT_TRUE (two->flush());
    one->setValue ("a", "1");
    EXPECT_TRUE (one->flush());
    EXPECT_EQ (readBack ("a"), "1");
}

TEST_F (SettingsTest, StayUntouchedWhileNothingChanges)
{
    open()->setValue ("a", "1");
    const auto before = FileStamp::of (file);
    open()->setValue ("a", "1");
    EXPECT_EQ (FileStamp::of (file), before);
    SettingsFile (folder.getChild ("none/none.settings"), 10).flush();
    EXPECT_FALSE (folder.getChild ("none").exists()) << "reading makes no folder";
}

TEST_F (SettingsTest, ReplaceAFileThatIsNoSettings)
{
    const juce::String bad[] = { "",
                                 "rubbish",
                                 "<PROPERTIES>",
                                 "<OTHER/>",
                                 "<!DOCTYPE PROPERTIES [<!ENTITY a 'b'>]><PROPERTIES/>",
                                 "<PROPERTIES><VALUE/><VALUE name=''/></PROPERTIES>" };

    for (const auto& text : bad)
    {
        file.create();
        ASSERT_TRUE (file.replaceWithText (text));
        open()->setValue ("a", "1");
        EXPECT_EQ (readBack ("a"), "1") << text;
    }
}

TEST_F (SettingsTest, NeverParseAValueWithoutTheGuard)
{
    // This text keeps JUCE's parser busy for ever.
    {
        auto settings = open();
        settings->setValue ("PARAMS", "<<? P?>:>4<? P?>:>");
        EXPECT_EQ (settings->getTree ("PARAMS"), nullptr);
        settings->setChild ("PARAMS", "PARAMS", juce::XmlElement ("RECENT"));
        settings->setValue ("evil", "<<? P?>:>4<? P?>:>");
    }

    EXPECT_EQ (readBack ("evil"), "<<? P?>:>4<? P?>:>");
    EXPECT_NE (open()->getTree ("PARAMS"), nullptr);
}

TEST_F (SettingsTest, ReportAFailedWriteAndKeepTheOldFile)
{
    open()->setValue ("a", "1");
    auto settings = open();
    settings->setValue ("b", juce::String::repeatedString ("x", 100'000));

    {
        const FullDisk fullDisk;
        EXPECT_FALSE (settings->flush());
    }

    EXPECT_EQ (readBack ("a"), "1");
    EXPECT_EQ (readBack ("b"), "missing");
    EXPECT_TRUE (settings->flush()) << "nothing was forgotten";
    EXPECT_EQ (readBack ("b").length(), 100'000);
    EXPECT_EQ (
        file.getParentDirectory().findChildFiles (juce::File::findFiles, false, "*.tmp").size(), 0);
}

TEST_F (SettingsTest, AreSharedByManyThreads)
{
    constexpr int numWriters = 10, numKeys = 20;
    std::vector<std::thread> writers;

    for (int writer = 0; writer < numWriters; ++writer)
        writers.emplace_back (
            [this, writer]
            {
                for (int key = 0; key < numKeys; ++key)
                    open()->setValue ("k" + juce::String (writer) + "-" + juce::String (key), "v");
            });

    std::atomic<bool> done{ false };
    int numHalf = 0;
    std::thread reader (
        [&]
        {
            while (! done)
                if (file.existsAsFile() && XmlReader::parse (file) == nullptr)
                    ++numHalf;
        });

    for (auto& writer : writers)
        writer.join();

    done = true;
    reader.join();
    EXPECT_EQ (numHalf, 0);

    for (int writer = 0; writer < numWriters; ++writer)
        for (int key = 0; key < numKeys; ++key)
            EXPECT_EQ (readBack ("k" + juce::String (writer) + "-" + juce::String (key)), "v");
}

constexpr auto writerVariable = "VORLO_TEST_SETTINGS_WRITER";

/** Runs in processes that the next test starts; the variable holds the file and a name. */
TEST (SettingsWriter, DISABLED_WritesKeysInAProcessOfItsOwn)
{
    const auto order = juce::StringArray::fromLines (
        juce::SystemStats::getEnvironmentVariable (writerVariable, {}));
    ASSERT_EQ (order.size(), 2);

    for (int key = 0; key < 20; ++key)
        SettingsFile (juce::File (order[0]), 10).setValue (order[1] + juce::String (key), "v");
}

TEST_F (SettingsTest, AreSharedByProcesses)
{
    const auto self = juce::File ("/proc/self/exe").getLinkedTarget();

    if (! self.existsAsFile())
        GTEST_SKIP() << "no way to find this program";

    juce::OwnedArray<juce::ChildProcess> writers;

    for (const auto* name : { "x", "y", "z" })
    {
        const auto order = file.getFullPathName() + "\n" + name;
        ::setenv (writerVariable, order.toRawUTF8(), 1);
        ASSERT_TRUE (writers.add (new juce::ChildProcess())
                         ->start (juce::StringArray{ self.getFullPathName(),
                                                     "--gtest_also_run_disabled_tests",
                                                     "--gtest_filter=SettingsWriter.*" }));
    }

    ::unsetenv (writerVariable);

    for (auto* writer : writers)
    {
        writer->readAllProcessOutput();
        EXPECT_TRUE (writer->waitForProcessToFinish (30000));
    }

    for (const auto* name : { "x", "y", "z" })
        for (int key = 0; key < 20; ++key)
            EXPECT_EQ (readBack (name + juce::String (key)), "v") << name << key;
}

TEST_F (SettingsTest, HoldTheDefaultFrozenMarksByParameter)
{
    ParamSet set ("PARAMS");
    auto* a = new ParamFloat ("a", "A", &set, 0, 0, 1, 0.1, "");
    new ParamFloat ("b", "B", &set, 0, 0, 1, 0.1, "");
    juce::PropertiesFile::Options options;
    Settings settings (file, options, set);
    EXPECT_EQ (settings.getFrozenStates().size(), 0);

    settings.setValue ("frozen", "<FROZEN><STATES b=\"1\"/><OTHER/><STATES a=\"1\"/></FROZEN>");
    EXPECT_EQ (settings.getFrozenStates()["A"], "0");
    EXPECT_EQ (settings.getFrozenStates()["b"], "1");

    a->changeFrozen (true);
    settings.saveFrozenStates();
    EXPECT_EQ (settings.getValue ("frozen"), "<FROZEN><OTHER/><STATES b=\"0\" a=\"1\"/></FROZEN>");
}

TEST (AtomicFile, FollowsALinkAndLeavesOtherThingsAlone)
{
    const TemporaryFolder folder;
    const auto real = folder.getChild ("real.txt"), link = folder.getChild ("link.txt");
    real.replaceWithText ("old");
    ASSERT_TRUE (real.createSymbolicLink (link, true));
    EXPECT_TRUE (AtomicFile::write (link, "new"));
    EXPECT_TRUE (link.isSymbolicLink());
    EXPECT_EQ (real.loadFileAsString(), "new");

    EXPECT_FALSE (AtomicFile::write (folder.get(), "text")) << "a folder";
    EXPECT_FALSE (AtomicFile::write (folder.getChild ("none/file"), "text"));
    EXPECT_FALSE (AtomicFile::write (juce::File(), "text"));
    const auto longest = folder.getChild (juce::String::repeatedString ("n", 255));
    EXPECT_TRUE (AtomicFile::write (longest, "text")) << "as long as names may be";
    EXPECT_EQ (folder.get().getNumberOfChildFiles (juce::File::findFiles), 3);
}

} // namespace
