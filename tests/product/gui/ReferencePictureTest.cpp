// The whole editor against pictures that a human has looked at.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FakeDisplay.h"
#include "tests/support/TestWindow.h"
#include "tools/snapshot/Snapshot.h"

#include <gtest/gtest.h>

// When the look changes on purpose, tests/product/gui/reference/update renders the pictures anew.
// Look at each of them before it is committed.

namespace
{

struct Difference
{
    double meanPerChannel = 0.0; ///< 0 to 255
    double changedPixels = 0.0;  ///< the part of all pixels that differ plainly
};

Difference compare (const juce::Image& a, const juce::Image& b)
{
    constexpr int plainly = 48;
    juce::int64 sum = 0, changed = 0;

    for (int y = 0; y < a.getHeight(); ++y)
    {
        for (int x = 0; x < a.getWidth(); ++x)
        {
            const auto p = a.getPixelAt (x, y), q = b.getPixelAt (x, y);
            const int distances[] = { std::abs (p.getRed() - q.getRed()),
                                      std::abs (p.getGreen() - q.getGreen()),
                                      std::abs (p.getBlue() - q.getBlue()) };
            sum += distances[0] + distances[1] + distances[2];
            changed += *std::max_element (std::begin (distances), std::end (distances)) > plainly;
        }
    }

    const auto pixels = static_cast<double> (a.getWidth()) * a.getHeight();
    return { static_cast<double> (sum) / (3.0 * pixels), static_cast<double> (changed) / pixels };
}

juce::Image render (const SnapshotOptions& options)
{
    const FakeDisplay display ({ 0, 0, 10000, 6000 });
    Snapshot snapshot (options);
    EXPECT_EQ (snapshot.open(), "");
    TestWindow::runMessages (Snapshot::settlingTime);
    return snapshot.paint();
}

SnapshotOptions readScene (const juce::String& line)
{
    SnapshotOptions options;
    EXPECT_EQ (SnapshotOptions::parse (juce::StringArray::fromTokens (line, " ", {}), options), "");
    return options;
}

const juce::File referenceFolder{ VORLO_REFERENCE_FOLDER };

} // namespace

TEST (ReferencePictures, MatchWhatTheEditorDraws)
{
    if (! juce::Font::findAllTypefaceNames().contains ("DejaVu Sans")
        || juce::Font::findAllTypefaceNames().contains ("Verdana"))
        GTEST_SKIP() << "the pictures are set in DejaVu Sans";

    juce::StringArray scenes;
    referenceFolder.getChildFile ("scenes.txt").readLines (scenes);
    scenes.removeEmptyStrings();
    ASSERT_GE (scenes.size(), 5);

    for (const auto& scene : scenes)
    {
        const auto options = readScene (scene);
        const auto reference =
            juce::ImageFileFormat::loadFrom (referenceFolder.getChildFile (options.outputPath));
        const auto picture = render (options);
        ASSERT_TRUE (reference.isValid()) << options.outputPath;
        ASSERT_EQ (picture.getBounds(), reference.getBounds()) << options.outputPath;
        const auto difference = compare (picture, reference);
        EXPECT_LT (difference.meanPerChannel, 0.6) << options.outputPath;
        EXPECT_LT (difference.changedPixels, 0.002) << options.outputPath;
    }
}

TEST (ReferencePictures, DifferWhenOneControlDoes)
{
    const auto rest = render (readScene ("x.png"));

    for (const auto* change : { "drive=8", "filterType=hipass", "bypassDrySignal=1",
                                "lfoWaveform=square", "lfoSyncOrFree=sync", "dry=6" })
    {
        const auto changed = render (readScene (juce::String ("x.png --set ") + change));
        EXPECT_GT (compare (rest, changed).changedPixels, 0.0002) << change;
    }
}

TEST (SnapshotOptions, RefusesWhatItCannotRead)
{
    const std::pair<const char*, const char*> cases[] = {
        { "", "usage" },
        { "a.png b.png", "\"b.png\"" },
        { "a.png --size", "--size needs a value" },
        { "a.png --size 750", "\"750\" is not a size" },
        { "a.png --size 0x316", "is not a size" },
        { "a.png --size 99999x1", "is not a size" },
        { "a.png --scale -1", "is not a scale" },
        { "a.png --scale 9", "is not a scale" },
        { "a.png --set drive", "is not a setting" },
        { "a.png --set =1", "is not a setting" },
        { "a.png --turn", "is unknown" },
    };

    for (const auto& [line, fault] : cases)
    {
        SnapshotOptions options;
        const auto message =
            SnapshotOptions::parse (juce::StringArray::fromTokens (line, " ", {}), options);
        EXPECT_TRUE (message.contains (fault)) << line << ": " << message;
        EXPECT_FALSE (message.containsAnyOf ("\r\n"));
    }
}

TEST (SnapshotOptions, RefusesWhatTheProductDoesNotHave)
{
    const std::pair<const char*, const char*> cases[] = {
        { "a.png --set rdive=1", "no parameter \"rdive\"" },
        { "a.png --set drive=101", "outside the range" },
        { "a.png --set drive=nan", "is no value" },
        { "a.png --set filterType=comb", "is no value" },
        { "a.png --show nothing", "no dialog \"nothing\"" },
    };

    for (const auto& [line, fault] : cases)
    {
        Snapshot snapshot (readScene (line));
        const auto message = snapshot.open();
        EXPECT_TRUE (message.contains (fault)) << line << ": " << message;
    }
}
