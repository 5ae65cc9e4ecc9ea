// The built VST 2, VST3 and LV2 binaries in a host: set, played, saved and restored.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/HostedVorlo.h"
#include "tests/support/Signals.h"

#include <gtest/gtest.h>

namespace
{

struct BuiltFormat
{
    const char* name;
    const char* path;
    int numParameters; ///< that can be automated; the wrappers of VST3 and LV2 add one that bypasses
};

const BuiltFormat builtFormats[] = { { "VST2", VORLO_VST2_PATH, 23 },
                                     { "VST3", VORLO_VST3_PATH, 24 },
                                     { "LV2", VORLO_LV2_PATH, 24 } };

class HostedPluginTest : public testing::TestWithParam<BuiltFormat>
{
protected:
    static const char* getPath() { return GetParam().path; }
};

TEST_P (HostedPluginTest, ShowsItsParameters)
{
    HostedVorlo vorlo (getPath());
    ASSERT_TRUE (vorlo.isLoaded());
    EXPECT_EQ (vorlo.get().getName(), "Vorlo");
    EXPECT_EQ (std::ranges::count_if (vorlo.get().getParameters(),
                                      [] (auto* parameter) { return parameter->isAutomatable(); }),
               GetParam().numParameters)
        << "VST3 has others too, through which it hands over MIDI controllers";
    EXPECT_EQ (vorlo.get().getTotalNumInputChannels(), 2);
    EXPECT_EQ (vorlo.get().getTotalNumOutputChannels(), 2);

    TestProcessor reference;

    for (auto* param : reference.processor.getParamSet())
    {
        SCOPED_TRACE (param->getId());
        auto& hosted = vorlo.find (param->getId());
        EXPECT_FLOAT_EQ (hosted.getValue(),
                         static_cast<float> (param->normalise (param->getDefaultValue())));
        EXPECT_TRUE (hosted.isAutomatable());

        // LV2 has texts for choices alone.
        if (juce::String (GetParam().name) == "LV2" && param->getType() != zembra::Param::typeInt)
            continue;

        const auto text = param->getText (static_cast<float> (param->getValue()), 64);
        EXPECT_TRUE (hosted.getCurrentValueAsText().startsWith (text))
            << hosted.getCurrentValueAsText() << " " << text;
    }
}

TEST_P (HostedPluginTest, SoundsAsItIsSet)
{
    HostedVorlo vorlo (getPath());
    ASSERT_TRUE (vorlo.isLoaded());
    vorlo.set ("bypassFilter", 1.0);
    vorlo.set ("dry", -48.0);
    vorlo.set ("wet", -6.0);

    // By hand: without the filter, and at rest otherwise, the wet gain is all that is left.
    for (int i = 0; i < 10; ++i)
    {
        auto block = signals::makeConstant (2, 512, 0.5f);
        vorlo.process (block);

        if (i < 1)
            continue;

        EXPECT_NEAR (block.getSample (1, 511), 0.5 * std::pow (10.0, -6.0 / 20.0), 1e-4);
    }
}

TEST_P (HostedPluginTest, AStateComesBackInAnotherInstance)
{
    HostedVorlo first (getPath());
    ASSERT_TRUE (first.isLoaded());
    const std::pair<const char*, double> values[] = {
        { "dry", -10.0 },         { "wet", 2.5 },
        { "dryWetLink", 1.0 },    { "drive", 61.5 },
        { "crush", 20.0 },        { "filterType", 1.0 },
        { "hipassFreq", 440.0 },  { "lowpassFreq", 5000.0 },
        { "lfoSyncOrFree", 1.0 }, { "lfoSyncedPeriod", 22.0 },
        { "lfoWaveform", 2.0 },   { "driveModDepth", 40.0 },
    };

    // The link last: it moves what is set after it.
    for (const auto* last : { "", "dryWetLink" })
        for (const auto& [id, plain] : values)
            if ((id == juce::String ("dryWetLink")) == (last == juce::String ("dryWetLink")))
                first.set (id, plain);

    const auto state = first.getState();
    HostedVorlo second (getPath());
    second.setState (state);
    juce::AudioBuffer<float> nothing (2, 0);
    second.process (nothing);

    for (const auto& [id, plain] : values)
        EXPECT_NEAR (second.getValue (id), plain, std::abs (plain) * 1e-4 + 1e-4) << id;

    // The first save is of values as the host set them, the later ones of values as they are stored.
    HostedVorlo third (getPath());
    third.setState (second.getState());
    EXPECT_EQ (third.getState(), second.getState());

    for (int i = 0; i < 5; ++i)
    {
        auto one = signals::makeBusySignal (2, 512, 0.8f);
        auto other = one;
        first.process (one);
        second.process (other);

        for (int sample = 0; i > 0 && sample < 512; ++sample)
            ASSERT_EQ (one.getSample (0, sample), other.getSample (0, sample)) << i;
    }
}

TEST_P (HostedPluginTest, GarbageAsStateChangesNothing)
{
    HostedVorlo vorlo (getPath());
    ASSERT_TRUE (vorlo.isLoaded());
    vorlo.set ("drive", 33.0);
    const auto state = vorlo.getState();
    vorlo.setState (juce::MemoryBlock ("no state at all", 15));
    EXPECT_NEAR (vorlo.getValue ("drive"), 33.0, 1e-3);
    EXPECT_EQ (vorlo.getState(), state);
}

INSTANTIATE_TEST_SUITE_P (Formats, HostedPluginTest, testing::ValuesIn (builtFormats),
                          [] (const auto& format) { return format.param.name; });

TEST (HostedPluginIdsTest, FormatsWithIdsKnowParametersByTheirStableIds)
{
    const auto getId = [] (juce::AudioProcessorParameter& parameter)
    { return dynamic_cast<juce::HostedAudioProcessorParameter&> (parameter).getParameterID(); };
    HostedVorlo vst3 (VORLO_VST3_PATH), lv2 (VORLO_LV2_PATH);
    ASSERT_TRUE (vst3.isLoaded() && lv2.isLoaded());
    TestProcessor reference;

    for (const auto* param : reference.processor.getParamSet())
    {
        // VST3 has 31-bit numbers: JUCE hashes the id.
        const auto number = static_cast<juce::uint32> (param->getId().hashCode()) & 0x7fffffffu;
        EXPECT_EQ (getId (vst3.find (param->getId())), juce::String (number)) << param->getId();
        EXPECT_TRUE (getId (lv2.find (param->getId())).endsWith (param->getId()))
            << getId (lv2.find (param->getId()));
    }
}

} // namespace
