// The map of controllers: its invariant, its order, its notifications and its XML.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/midi/ParamsMidiMapper.h"
#include "framework/core/XmlReader.h"
#include "tests/support/TestProcessor.h"

#include <gtest/gtest.h>

#include <thread>

namespace
{

using Ids = juce::StringArray;

/** Writes down what the mapper tells. */
struct MapperRecorder final : zembra::ParamsMidiMapper::Listener,
                              zembra::PresetStateManager::Listener
{
    void mappingChanged (zembra::ParamsMidiMapper*, const juce::String& paramId, int cc) override
    {
        log << paramId << "=" << cc << " ";
    }

    void stateChanged() override { log << "state "; }

    juce::String take() { return std::exchange (log, {}).trim(); }

    juce::String log;
};

class ParamsMidiMapperTest : public testing::Test
{
protected:
    ParamsMidiMapperTest()
    {
        mapper.addListener (static_cast<zembra::ParamsMidiMapper::Listener*> (&recorder));
        mapper.addListener (static_cast<zembra::PresetStateManager::Listener*> (&recorder));
    }

    ~ParamsMidiMapperTest() override
    {
        mapper.removeListener (static_cast<zembra::ParamsMidiMapper::Listener*> (&recorder));
        mapper.removeListener (static_cast<zembra::PresetStateManager::Listener*> (&recorder));
    }

    juce::String save()
    {
        juce::XmlElement element (mapper.getName());
        mapper.saveToXml (element);
        return element.toString (juce::XmlElement::TextFormat().singleLine().withoutHeader());
    }

    void load (const char* text)
    {
        const auto element = zembra::XmlReader::parse (juce::String (text));
        ASSERT_NE (element, nullptr);
        mapper.loadFromXml (*element);
    }

    TestProcessor tested;
    zembra::ParamsMidiMapper& mapper = tested.processor.getParamsMidiMapper();
    MapperRecorder recorder;
};

TEST_F (ParamsMidiMapperTest, StartsEmpty)
{
    EXPECT_EQ (mapper.getName(), "MIDIMAPPING");
    EXPECT_EQ (mapper.getMapping ("drive"), -1);
    EXPECT_EQ (mapper.getMapping ("no such parameter"), -1);
    EXPECT_EQ (mapper.getParamsForCC (0), Ids());
    EXPECT_EQ (mapper.getParamsForCC (-1), Ids());
    EXPECT_EQ (save(), "<MIDIMAPPING/>");
}

TEST_F (ParamsMidiMapperTest, GivesEachParameterOneControllerAndAControllerManyParameters)
{
    mapper.setMapping (20, "wet");
    mapper.setMapping (20, "crush");
    mapper.setMapping (20, "dry");
    EXPECT_EQ (mapper.getParamsForCC (20), (Ids{ "wet", "crush", "dry" }))
        << "in the order of mapping, not of the table";

    mapper.setMapping (0, "crush");
    EXPECT_EQ (mapper.getMapping ("crush"), 0);
    EXPECT_EQ (mapper.getParamsForCC (0), Ids{ "crush" });
    EXPECT_EQ (mapper.getParamsForCC (20), (Ids{ "wet", "dry" }));

    mapper.setMapping (20, "crush");
    EXPECT_EQ (mapper.getParamsForCC (20), (Ids{ "wet", "dry", "crush" })) << "last again";

    mapper.removeMapping ("wet");
    EXPECT_EQ (mapper.getMapping ("wet"), -1);
    EXPECT_EQ (mapper.getParamsForCC (20), (Ids{ "dry", "crush" }));
}

TEST_F (ParamsMidiMapperTest, TellsOfRealChangesOnly)
{
    mapper.setMapping (7, "drive");
    EXPECT_EQ (recorder.take(), "drive=7 state");

    mapper.setMapping (7, "drive");
    EXPECT_EQ (recorder.take(), "") << "the pair stands";

    mapper.setMapping (8, "drive");
    EXPECT_EQ (recorder.take(), "drive=8 state");

    mapper.removeMapping ("drive");
    EXPECT_EQ (recorder.take(), "drive=-1 state");

    mapper.removeMapping ("drive");
    mapper.setMapping (7, "no such parameter");
    mapper.removeMapping ("no such parameter");
    EXPECT_EQ (recorder.take(), "");
}

TEST_F (ParamsMidiMapperTest, WritesAnAttributeForEachMappedParameterTheLastOneFirst)
{
    mapper.setMapping (1, "dry");
    mapper.setMapping (127, "lfoWaveform");
    mapper.setMapping (1, "drive");
    EXPECT_EQ (save(), R"(<MIDIMAPPING lfoWaveform="127" drive="1" dry="1"/>)");
}

TEST_F (ParamsMidiMapperTest, ReplacesTheWholeMapByWhatItReads)
{
    mapper.setMapping (5, "dry");
    mapper.setMapping (6, "wet");
    mapper.setMapping (7, "drive");
    recorder.take();

    load (R"(<MIDIMAPPING wet="6" drive="9" crush="-1" unknown="3"/>)");
    EXPECT_EQ (recorder.take(), "dry=-1 state drive=9 state");
    EXPECT_EQ (save(), R"(<MIDIMAPPING drive="9" wet="6"/>)");

    load (R"(<MIDIMAPPING wet="-1"/>)");
    EXPECT_EQ (save(), "<MIDIMAPPING/>");
}

TEST_F (ParamsMidiMapperTest, KeepsWhateverNumberAFileHolds)
{
    // No controller has these numbers, so that they move nothing; a file gets them back.
    load (R"(<MIDIMAPPING dry="128" wet="-2147483648" crush="99999999999" drive="x"/>)");
    EXPECT_EQ (mapper.getMapping ("dry"), 128);
    EXPECT_EQ (mapper.getMapping ("wet"), std::numeric_limits<int>::min());
    EXPECT_EQ (mapper.getMapping ("crush"), std::numeric_limits<int>::max());
    EXPECT_EQ (mapper.getMapping ("drive"), 0) << "a text without a number is 0";

    const auto text = save();
    load (text.toRawUTF8());
    EXPECT_EQ (save(), text);
}

TEST_F (ParamsMidiMapperTest, AControllerMovesItsParametersInTheOrderOfMapping)
{
    struct Order final : zembra::Param::Listener
    {
        void paramChanged (zembra::Param* param, double, double, int source) override
        {
            if (source == zembra::sourceMidi)
                moved.add (param->getId());
        }

        Ids moved;
    } order;

    for (const auto* id : { "wet", "crush", "drive", "dry" })
        mapper.setMapping (3, id);

    mapper.setMapping (4, "crush");

    for (auto* param : tested.processor.getParamSet())
        param->addListener (&order);

    mapper.handleController (3, 100);
    EXPECT_EQ (order.moved, (Ids{ "wet", "drive", "dry" }));
    EXPECT_DOUBLE_EQ (tested.get ("drive"), 100.0 * 100.0 / 127.0);

    for (auto* param : tested.processor.getParamSet())
        param->removeListener (&order);
}

/** Counts what it is told on any thread. */
struct MapperCounter final : zembra::ParamsMidiMapper::Listener
{
    void mappingChanged (zembra::ParamsMidiMapper*, const juce::String&, int) override
    {
        ++numChanges;
    }

    std::atomic<int> numChanges{ 0 };
};

/** One thread learns and plays, as the audio thread does, while another asks, removes and saves. */
TEST (ParamsMidiMapperThreads, KeepTheInvariant)
{
    constexpr int numRounds = 3000;
    TestProcessor tested;
    auto& mapper = tested.processor.getParamsMidiMapper();
    MapperCounter counter;
    mapper.addListener (&counter);
    std::atomic<bool> stop{ false };

    std::thread learner (
        [&]
        {
            const juce::String ids[] = { "drive", "crush", "downsamp" };

            for (int i = 0; i < numRounds; ++i)
            {
                mapper.setMapping (i % 4, ids[i % 3]);
                mapper.handleController (i % 4, i % 128);
            }

            stop = true;
        });

    while (! stop)
    {
        mapper.removeMapping ("drive");
        juce::XmlElement element (mapper.getName());
        mapper.saveToXml (element);
        EXPECT_LE (element.getNumAttributes(), 3);

        for (int cc = 0; cc < 4; ++cc)
        {
            auto mapped = mapper.getParamsForCC (cc);
            const auto numMapped = mapped.size();
            mapped.removeDuplicates (false);
            EXPECT_EQ (mapped.size(), numMapped);
        }
    }

    learner.join();
    mapper.removeListener (&counter);
    EXPECT_GE (counter.numChanges, numRounds);
    juce::StringArray all;

    for (int cc = 0; cc < 4; ++cc)
        all.addArray (mapper.getParamsForCC (cc));

    EXPECT_LE (all.size(), 3);
    EXPECT_TRUE (all.contains ("crush") && all.contains ("downsamp"));
}

} // namespace
