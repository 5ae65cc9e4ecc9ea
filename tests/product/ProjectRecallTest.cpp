// A chunk of the VST 2 binary opens in the product's own processor, and the other way round.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/midi/ParamsMidiMapper.h"
#include "tests/support/HostedVorlo.h"
#include "tools/validate/PluginState.h"

#include <gtest/gtest.h>

namespace
{

using Vst2 = juce::VSTPluginFormat;

TEST (ProjectRecallTest, AChunkOfTheBinaryOpensInTheProcessor)
{
    HostedVorlo hosted (VORLO_VST2_PATH);
    ASSERT_TRUE (hosted.isLoaded());
    hosted.set ("drive", 37.0);
    hosted.set ("lfoWaveform", 2.0);
    juce::MemoryBlock chunk;
    ASSERT_TRUE (Vst2::getChunkData (&hosted.get(), chunk, false));

    TestProcessor vorlo;
    vorlo.processor.setStateInformation (chunk.getData(), static_cast<int> (chunk.getSize()));
    EXPECT_NEAR (vorlo.get ("drive"), 37.0, 1e-4);
    EXPECT_EQ (vorlo.get ("lfoWaveform"), 2.0);
}

TEST (ProjectRecallTest, AChunkOfTheProcessorOpensInTheBinary)
{
    TestProcessor vorlo;
    vorlo.set ("drive", 37.0);
    vorlo.set ("lowpassFreq", 1234.0);
    vorlo.processor.getParamsMidiMapper().setMapping (74, "lowpassFreq");
    vorlo.processor.setMidiEnabled (true);
    juce::MemoryBlock chunk, back;
    vorlo.processor.getStateInformation (chunk);

    HostedVorlo hosted (VORLO_VST2_PATH);
    ASSERT_TRUE (hosted.isLoaded());
    ASSERT_TRUE (Vst2::setChunkData (&hosted.get(), chunk.getData(),
                                     static_cast<int> (chunk.getSize()), false));
    EXPECT_NEAR (hosted.getValue ("drive"), 37.0, 1e-4);
    EXPECT_NEAR (hosted.getValue ("lowpassFreq"), 1234.0, 0.1);

    // The values were stored already, so that the binary writes what it has read, byte by byte.
    ASSERT_TRUE (Vst2::getChunkData (&hosted.get(), back, false));
    EXPECT_EQ (back, chunk);
}

/** JUCE's VST3 wrapper puts a length and a mark of its own behind the chunk. */
TEST (ProjectRecallTest, ADamagedEndOfAVst3StateDoesNoHarm)
{
    HostedVorlo hosted (VORLO_VST3_PATH);
    ASSERT_TRUE (hosted.isLoaded());
    hosted.set ("drive", 37.0);
    const auto state = hosted.getState();
    const auto bytes = validate::unwrapState (hosted.get(), state);
    constexpr size_t longestEnd = 60;
    ASSERT_GT (bytes.getSize(), longestEnd);

    for (size_t i = 1; i <= longestEnd; ++i)
        for (const auto wrong : { 0x00, 0x01, 0x7f, 0x80, 0xff })
        {
            auto damaged = bytes;
            damaged[bytes.getSize() - i] = static_cast<char> (wrong);
            hosted.setState (validate::wrapState (hosted.get(), state, damaged));
            EXPECT_NEAR (hosted.getValue ("drive"), 37.0, 1e-3) << i << " " << wrong;
        }
}

} // namespace
