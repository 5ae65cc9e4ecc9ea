// The built VST 2 binary, loaded by hand and spoken to in the interface's own numbers.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <vector>

#ifdef __GNUC__
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#pragma GCC diagnostic ignored "-Wpedantic"
#endif
#include <pluginterfaces/fst/aeffect.h>

namespace
{

/** The opcodes as the interface numbers them; written out, so that a wrong header is found. */
namespace opcode
{
constexpr int open = 0;
constexpr int close = 1;
constexpr int getParamLabel = 6;
constexpr int getParamDisplay = 7;
constexpr int getParamName = 8;
constexpr int setSampleRate = 10;
constexpr int setBlockSize = 11;
constexpr int mainsChanged = 12;
constexpr int getChunk = 23;
constexpr int setChunk = 24;
constexpr int canBeAutomated = 26;
constexpr int getOutputProperties = 34;
constexpr int setBypass = 44;
constexpr int getEffectName = 45;
constexpr int getVendorString = 47;
constexpr int getTailSize = 52;
constexpr int getVstVersion = 58;
} // namespace opcode

t_fstPtrInt answerAsHost (AEffect*, int hostOpcode, int, t_fstPtrInt, void* const, float)
{
    constexpr int audioMasterVersion = 1;
    return hostOpcode == audioMasterVersion ? 2400 : 0;
}

/** One instance in a host that knows nothing of JUCE. */
class Vst2EntryTest : public testing::Test
{
protected:
    Vst2EntryTest()
    {
        setenv ("HOME", folder.get().getFullPathName().toRawUTF8(), 1);
        library.open (VORLO_VST2_PATH);
        using Entry = AEffect* (*) (audioMasterCallback);

        if (auto* entry = reinterpret_cast<Entry> (library.getFunction ("VSTPluginMain")))
            effect = entry (answerAsHost);
    }

    void SetUp() override
    {
        ASSERT_NE (effect, nullptr);
        ASSERT_EQ (effect->magic, 0x56737450);
        send (opcode::open);
    }

    ~Vst2EntryTest() override
    {
        if (effect != nullptr)
            send (opcode::close);
    }

    t_fstPtrInt send (int code, int index = 0, t_fstPtrInt value = 0, void* data = nullptr,
                      float number = 0.0f)
    {
        return effect->dispatcher (effect, code, index, value, data, number);
    }

    juce::String ask (int code, int index = 0)
    {
        std::array<char, 256> text{};
        send (code, index, 0, text.data());
        return juce::String::fromUTF8 (text.data());
    }

    void start (float sampleRate, int blockSize)
    {
        send (opcode::setSampleRate, 0, 0, nullptr, sampleRate);
        send (opcode::setBlockSize, 0, blockSize);
        send (opcode::mainsChanged, 0, 1);
    }

    /** Plays a constant through the instance and returns the last sample of the last block. */
    float play (float value, int numBlocks)
    {
        std::vector<float> left (256), right (256), outLeft (256), outRight (256);
        std::array<float*, 2> outputs{ outLeft.data(), outRight.data() };

        for (int block = 0; block < numBlocks; ++block)
        {
            std::fill (left.begin(), left.end(), value);
            std::fill (right.begin(), right.end(), value);
            std::array<float*, 2> inputs{ left.data(), right.data() };
            effect->processReplacing (effect, inputs.data(), outputs.data(), 256);
        }

        return outRight.back();
    }

    TemporaryFolder folder;
    juce::DynamicLibrary library;
    AEffect* effect = nullptr;
};

TEST_F (Vst2EntryTest, SaysWhatItIs)
{
    EXPECT_EQ (effect->numParams, 23);
    EXPECT_EQ (effect->numInputs, 2);
    EXPECT_EQ (effect->numOutputs, 2);
    EXPECT_EQ (effect->uniqueID, 0x566f726c) << "Vorl";
    EXPECT_EQ (effect->numPrograms, 1);
    EXPECT_EQ (ask (opcode::getEffectName), "Vorlo");
    EXPECT_EQ (ask (opcode::getVendorString), "Ombrel");
    EXPECT_EQ (send (opcode::getVstVersion), 2400);
    EXPECT_EQ (ask (opcode::getParamName, 13), "Lowpass Freq");
    EXPECT_EQ (ask (opcode::getParamLabel, 13), "Hz");
    EXPECT_EQ (ask (opcode::getParamDisplay, 13), "8000.00");
    EXPECT_EQ (send (opcode::canBeAutomated, 22), 1);
    EXPECT_FLOAT_EQ (effect->getParameter (effect, 21), 19.0f / 32.0f);
}

TEST_F (Vst2EntryTest, DescribesItsPinsInTheInterfacesFlagsAndSizes)
{
    struct
    {
        t_fstPinProperties pin;
        char beyond;
    } room{ {}, 'x' };

    EXPECT_EQ (send (opcode::getOutputProperties, 0, 0, &room), 1);
    constexpr int isActive = 1, isStereo = 2, useSpeaker = 4;
    EXPECT_EQ (room.pin.flags, isActive | isStereo | useSpeaker);
    EXPECT_STREQ (room.pin.label, "Output L");
    EXPECT_STREQ (room.pin.shortLabel, "Output ");
    EXPECT_EQ (room.beyond, 'x');
}

TEST_F (Vst2EntryTest, HearsTheHostsBypassAndTailQuestion)
{
    start (48000.0f, 256);
    effect->setParameter (effect, 0, 0.0f);          // dry: -inf
    effect->setParameter (effect, 1, 48.0f / 66.0f); // wet: 0 dB
    EXPECT_NEAR (play (0.25f, 100), 0.25f, 0.01f)
        << "the low-pass passes a constant, but for its soft clip";
    effect->setParameter (effect, 1, 0.0f);
    EXPECT_EQ (play (0.25f, 100), 0.0f);

    EXPECT_EQ (send (opcode::setBypass, 0, 1), 1);
    EXPECT_EQ (play (0.25f, 1), 0.25f) << "bypassed by the host";
    EXPECT_EQ (send (opcode::setBypass, 0, 0), 1);
    EXPECT_EQ (play (0.25f, 1), 0.0f);
    EXPECT_EQ (send (opcode::getTailSize), 0);
}

TEST_F (Vst2EntryTest, KeepsItsStateInAChunk)
{
    effect->setParameter (effect, 5, 0.42f);
    void* chunk = nullptr;
    const auto size = send (opcode::getChunk, 0, 0, &chunk);
    ASSERT_GT (size, 0);
    const std::vector<char> copy (static_cast<char*> (chunk), static_cast<char*> (chunk) + size);

    effect->setParameter (effect, 5, 0.9f);
    send (opcode::setChunk, 0, size, const_cast<char*> (copy.data()));
    EXPECT_NEAR (effect->getParameter (effect, 5), 0.42f, 1e-6f);
}

} // namespace

#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif
