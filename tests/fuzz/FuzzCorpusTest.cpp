// Runs every fuzz target on its committed corpus, and on damaged copies of it.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/fuzz/FuzzTargets.h"

#include <gtest/gtest.h>
#include <juce_core/juce_core.h>

namespace
{

class FuzzCorpusTest : public testing::TestWithParam<fuzz::NamedTarget>
{
protected:
    static juce::Array<juce::File> findCorpus()
    {
        return juce::File (VORLO_FUZZ_CORPUS)
            .getChildFile (GetParam().name)
            .findChildFiles (juce::File::findFiles, false);
    }

    static std::string run (const juce::MemoryBlock& bytes)
    {
        return GetParam().run (static_cast<const std::uint8_t*> (bytes.getData()), bytes.getSize());
    }
};

TEST_P (FuzzCorpusTest, HoldsOnTheCorpusAndNearIt)
{
    juce::Random random (5);
    ASSERT_GT (findCorpus().size(), 2);

    for (const auto& file : findCorpus())
    {
        juce::MemoryBlock bytes;
        ASSERT_TRUE (file.loadFileAsData (bytes));
        EXPECT_EQ (run (bytes), "") << file.getFileName();

        for (int i = 0; i < 20 && ! bytes.isEmpty(); ++i)
        {
            auto damaged = bytes;
            damaged[random.nextInt (static_cast<int> (bytes.getSize()))] =
                static_cast<char> (random.nextInt (256));
            damaged.setSize (
                1 + static_cast<size_t> (random.nextInt (static_cast<int> (bytes.getSize()))));
            EXPECT_EQ (run (damaged), "") << file.getFileName() << " " << i;
        }
    }
}

INSTANTIATE_TEST_SUITE_P (All, FuzzCorpusTest, testing::ValuesIn (fuzz::getTargets()),
                          [] (const auto& target) { return std::string (target.param.name); });

} // namespace
