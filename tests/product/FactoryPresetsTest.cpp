// The factory bank: every preset is whole, and as the plug-in writes it.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/XmlReader.h"
#include "tests/support/PresetTest.h"

namespace
{

class FactoryPresetsTest : public PresetTest
{
protected:
    /** Every parameter stands in both, with the same number as floats hold it. */
    static void expectSameValues (const juce::File& a, const juce::File& b)
    {
        const auto rootA = zembra::XmlReader::parse (a), rootB = zembra::XmlReader::parse (b);
        const auto *valuesA = rootA->getChildByName ("PARAMS"),
                   *valuesB = rootB->getChildByName ("PARAMS");
        ASSERT_TRUE (valuesA != nullptr && valuesB != nullptr);
        ASSERT_EQ (valuesA->getNumAttributes(), valuesB->getNumAttributes()) << a.getFileName();

        for (int i = 0; i < valuesA->getNumAttributes(); ++i)
        {
            EXPECT_EQ (valuesA->getAttributeName (i), valuesB->getAttributeName (i));
            EXPECT_FLOAT_EQ (valuesA->getAttributeValue (i).getFloatValue(),
                             valuesB->getAttributeValue (i).getFloatValue())
                << a.getFileName() << " " << valuesA->getAttributeName (i);
        }
    }
};

TEST_F (FactoryPresetsTest, AreListedInBanksAndSavedAsTheyStand)
{
    ASSERT_TRUE (juce::File (VORLO_FACTORY_PRESETS).copyDirectoryTo (folders.factory));
    const auto processor = makeProcessor();
    auto& manager = processor->getPresetFileManager();
    const auto files = manager.getFactoryPresets();
    const auto copy = folders.user.getChildFile ("copy.ompreset");
    EXPECT_GE (files.size(), 12);

    for (const auto& path : files)
    {
        const juce::File file (path);
        EXPECT_TRUE (file.getParentDirectory().isAChildOf (folders.factory)) << "not in a bank";

        // A fresh instance, since a small difference to the preset before would be ignored.
        const auto fresh = makeProcessor();
        auto& presets = fresh->getPresetFileManager();
        presets.loadPreset (file, nullptr);
        EXPECT_EQ (presets.getCurrentPresetPath(), path);
        EXPECT_TRUE (presets.getDescription().isNotEmpty()) << path;
        ASSERT_TRUE (presets.savePresetToFile (copy));
        expectSameValues (file, copy);
    }
}

} // namespace
