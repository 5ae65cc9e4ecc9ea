// What the host sees of the product: its table of parameters, messages and gestures.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/TestProcessor.h"

#include <gtest/gtest.h>

#include <cmath>

namespace
{

/** A row of the table as users know it. */
struct Row
{
    const char* id;
    const char* name;
    double defaultValue, minValue, maxValue;
    int numSteps;
    const char* label;
    const char* textOfDefault;
    bool isMeta;
};

const Row rows[] = {
    { "dry", "Dry", -3, -48, 18, 661, "dB", "-3.00", false },
    { "wet", "Wet", -3, -48, 18, 661, "dB", "-3.00", false },
    { "bypassDrySignal", "Bypass Dry Signal", 0, 0, 1, 2, "", "0", false },
    { "bypassWetSignal", "Bypass Wet Signal", 0, 0, 1, 2, "", "0", false },
    { "dryWetLink", "Dry Wet Link", 0, 0, 1, 2, "", "unlinked", true },
    { "drive", "Drive", 0, 0, 100, 1001, "%", "0.00", false },
    { "driveModDepth", "Drive Mod Depth", 0, 0, 100, 1001, "%", "0.00", false },
    { "crush", "Crush", 0, 0, 100, 1001, "%", "0.00", false },
    { "crushModDepth", "Crush Mod Depth", 0, 0, 100, 1001, "%", "0.00", false },
    { "downsamp", "Downsamp", 0, 0, 100, 1001, "%", "0.00", false },
    { "downsampModDepth", "Downsamp Mod Depth", 0, 0, 100, 1001, "%", "0.00", false },
    { "bypassFilter", "Bypass Filter", 0, 0, 1, 2, "", "active", false },
    { "filterType", "Filter Type", 0, 0, 1, 2, "", "lowpass", false },
    { "lowpassFreq", "Lowpass Freq", 8000, 20, 20000, 19981, "Hz", "8000.00", false },
    { "lowpassRes", "Lowpass Res", 0, 0, 1, 101, "", "0.00", false },
    { "hipassFreq", "Hipass Freq", 20, 20, 20000, 19981, "Hz", "20.00", false },
    { "hipassRes", "Hipass Res", 0, 0, 1, 101, "", "0.00", false },
    { "filterFreqModDepth", "Filter Freq Mod Depth", 0, 0, 100, 1001, "%", "0.00", false },
    { "filterResModDepth", "Filter Res Mod Depth", 0, 0, 100, 1001, "%", "0.00", false },
    { "lfoSyncOrFree", "LFO Sync Or Free", 0, 0, 1, 2, "", "free", true },
    { "lfoFreeRate", "LFO Free Rate", 0, 0, 10, 1001, "Hz", "0.00", false },
    { "lfoSyncedPeriod", "LFO Synced Period", 19, 0, 32, 33, "", "1/4", false },
    { "lfoWaveform", "LFO Waveform", 0, 0, 3, 4, "", "sine", false },
};

/** Counts what reaches the host. */
struct HostRecorder final : juce::AudioProcessorListener
{
    void audioProcessorParameterChanged (juce::AudioProcessor*, int index, float value) override
    {
        ++numMessages;
        lastIndex = index;
        lastValue = value;
    }

    void audioProcessorChanged (juce::AudioProcessor*, const ChangeDetails&) override {}

    int numMessages = 0, lastIndex = -1;
    float lastValue = -1.0f;
};

class HostBridgeTest : public testing::Test
{
protected:
    HostBridgeTest() { processor.addListener (&host); }
    ~HostBridgeTest() override { processor.removeListener (&host); }

    TestProcessor tested;
    VorloProcessor& processor = tested.processor;
    HostRecorder host;
};

TEST_F (HostBridgeTest, ShowsTheTableOfParameters)
{
    ASSERT_EQ (processor.getNumParameters(), static_cast<int> (std::size (rows)));
    ASSERT_EQ (processor.getParameters().size(), static_cast<int> (std::size (rows)));

    for (int i = 0; const auto& row : rows)
    {
        SCOPED_TRACE (row.id);
        const auto& param = *processor.getParamSet().getParam (i);
        EXPECT_EQ (processor.getParameterID (i), row.id);
        EXPECT_EQ (processor.getParameterName (i, 3), row.name) << "whole, whatever the limit";
        EXPECT_EQ (processor.getParameterLabel (i), row.label);
        EXPECT_EQ (processor.getParameterText (i, 16), row.textOfDefault);
        EXPECT_EQ (processor.getParameterNumSteps (i), row.numSteps);
        EXPECT_EQ (processor.isMetaParameter (i), row.isMeta);
        EXPECT_TRUE (processor.isParameterAutomatable (i));
        EXPECT_EQ (param.getMinValue(), row.minValue);
        EXPECT_EQ (param.getMaxValue(), row.maxValue);
        EXPECT_EQ (param.getValue(), row.defaultValue);
        EXPECT_FLOAT_EQ (processor.getParameter (i), processor.getParameterDefaultValue (i));
        ++i;
    }
}

TEST_F (HostBridgeTest, PutsTheMiddleOfATravelWhereItBelongs)
{
    for (const auto& [id, centre] :
         { std::pair ("lowpassFreq", 1000.0), std::pair ("hipassFreq", 1000.0),
           std::pair ("lfoFreeRate", 2.0), std::pair ("drive", 50.0) })
    {
        tested.set (id, centre);
        const auto& param = tested.param (id);
        EXPECT_NEAR (param.normalise (centre), 0.5, 1e-9) << id;
        EXPECT_NEAR (processor.getParameter (processor.getParamSet().indexOf (&param)), 0.5f,
                     1e-6f);
    }
}

TEST_F (HostBridgeTest, TellsTheHostOfAnEditOnceAndNeverEchoesItsAutomation)
{
    const auto index = processor.getParamSet().indexOf (&tested.param ("crush"));
    tested.param ("crush").setValue (25.0, zembra::sourceEditor, &processor.getUndoManager());
    EXPECT_EQ (host.numMessages, 1);
    EXPECT_EQ (host.lastIndex, index);
    EXPECT_FLOAT_EQ (host.lastValue, 0.25f);
    EXPECT_DOUBLE_EQ (tested.get ("crush"), 25.0);

    processor.setParameter (index, 0.75f);
    EXPECT_EQ (host.numMessages, 1);
    EXPECT_DOUBLE_EQ (tested.get ("crush"), 75.0);

    processor.getUndoManager().undo();
    EXPECT_EQ (host.numMessages, 2);
    EXPECT_DOUBLE_EQ (tested.get ("crush"), 0.0);
}

TEST_F (HostBridgeTest, IgnoresWhatAHostMustNotSet)
{
    const auto before = tested.get ("dry");
    processor.setParameter (0, std::nanf (""));
    processor.setParameter (-1, 0.5f);
    processor.setParameter (23, 0.5f);
    tested.param ("dry").setAutomatable (false);
    processor.setParameter (0, 0.1f);
    EXPECT_DOUBLE_EQ (tested.get ("dry"), before);

    tested.param ("dry").setAutomatable (true);
    processor.setParameter (0, 1e30f);
    EXPECT_DOUBLE_EQ (tested.get ("dry"), 18.0);
    EXPECT_EQ (host.numMessages, 0);
}

TEST_F (HostBridgeTest, ReadsTextsTypedIntoTheHost)
{
    const auto typed = [this] (int index, const char* text)
    { return processor.getParameters()[index]->getValueForText (text); };

    EXPECT_FLOAT_EQ (typed (0, "-inf"), 0.0f);
    EXPECT_FLOAT_EQ (typed (5, "50 %"), 0.5f);
    EXPECT_FLOAT_EQ (typed (13, "1000 Hz"), 0.5f);
    EXPECT_FLOAT_EQ (typed (22, "Square"), 1.0f / 3.0f);
    EXPECT_FLOAT_EQ (typed (5, "500"), 1.0f);
    EXPECT_FLOAT_EQ (typed (5, "nonsense"), 0.0f);
    EXPECT_EQ (processor.getParameters()[21]->getText (22.0f / 32.0f, 10), "1/8");
}

TEST_F (HostBridgeTest, OffersMonoAndStereo)
{
    using Set = juce::AudioChannelSet;
    const auto isOffered = [this] (const Set& in, const Set& out) {
        return processor.isBusesLayoutSupported ({ { in }, { out } });
    };

    EXPECT_TRUE (isOffered (Set::stereo(), Set::stereo()));
    EXPECT_TRUE (isOffered (Set::mono(), Set::mono()));
    EXPECT_TRUE (isOffered (Set::mono(), Set::stereo()));
    EXPECT_FALSE (isOffered (Set::stereo(), Set::mono()));
    EXPECT_FALSE (isOffered (Set::quadraphonic(), Set::quadraphonic()));
    EXPECT_FALSE (isOffered (Set::disabled(), Set::stereo()));
}

TEST_F (HostBridgeTest, HasOneProgramAndSaysWhatItIs)
{
    EXPECT_EQ (processor.getNumPrograms(), 1);
    EXPECT_EQ (processor.getProgramName (0), "Default");
    EXPECT_EQ (processor.getName(), "Vorlo");
    EXPECT_EQ (processor.getTailLengthSeconds(), 0.0);
    EXPECT_EQ (processor.getLatencySamples(), 0);
    EXPECT_EQ (processor.getAboutYear(), 2016);
    EXPECT_EQ (processor.getAboutText(), "Vorlo - 64b \n\nversion: 1.1.0  (Oct 18 2016)");
    EXPECT_EQ (processor.createPresetRoot()
                   ->toString (juce::XmlElement::TextFormat().withoutHeader())
                   .trim(),
               R"(<Vorlo company="Ombrel" version="1.1.0"/>)");
}

TEST_F (HostBridgeTest, RestoresALinkedPairAsItWasSaved)
{
    tested.set ("dry", 18.0);
    tested.set ("wet", -40.0);
    tested.set ("dryWetLink", 1.0);
    tested.set ("wet", -10.0); // dry stays at its limit, so that the difference is another one now
    juce::MemoryBlock chunk;
    processor.getStateInformation (chunk);

    TestProcessor other;
    other.set ("dryWetLink", 1.0);
    other.set ("dry", 0.0);
    other.processor.setStateInformation (chunk.getData(), static_cast<int> (chunk.getSize()));
    EXPECT_NEAR (other.get ("dry"), 18.0, 1e-6);
    EXPECT_NEAR (other.get ("wet"), -10.0, 1e-6);

    other.set ("dry", 8.0);
    EXPECT_NEAR (other.get ("wet"), -20.0, 1e-6) << "linked by the restored difference";
}

TEST_F (HostBridgeTest, KeepsTheDifferenceOfALinkedPair)
{
    tested.set ("dry", -3.0);
    tested.set ("wet", -9.0);
    tested.set ("dryWetLink", 1.0);
    tested.set ("wet", -12.0);
    EXPECT_NEAR (tested.get ("dry"), -6.0, 1e-9);
    tested.set ("dry", 18.0);
    EXPECT_NEAR (tested.get ("wet"), 12.0, 1e-9);
    tested.set ("wet", 18.0);
    EXPECT_NEAR (tested.get ("dry"), 18.0, 1e-9) << "stopped by its range";
    tested.set ("wet", 0.0);
    EXPECT_NEAR (tested.get ("dry"), 6.0, 1e-9) << "and back at the old difference";
}

} // namespace
