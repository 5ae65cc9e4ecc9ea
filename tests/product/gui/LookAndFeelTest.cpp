// The product's look: fonts, colours, and the pixels of knobs and switches.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/lookandfeel/AboutAndPrefsLookAndFeel.h"
#include "framework/gui/lookandfeel/ColourIds.h"
#include "framework/gui/lookandfeel/PluginHeaderLookAndFeel.h"
#include "tests/product/gui/EditorParts.h"

#include <gtest/gtest.h>

namespace
{

constexpr float startAngle = 226.0f, endAngle = 494.0f; // degrees clockwise from the top
const juce::Colour red{ 0xffb91b18 }, gold{ 0xffc69858 }, track{ 0xff444444 };
const juce::Colour background{ 0xff111111 }, frozen{ 0xff006d91 };

/** A picture of one knob, with names for its places. */
class KnobPicture
{
public:
    KnobPicture (OpenEditor& open, const char* id)
    {
        TestWindow::runMessages (afterTimers);
        auto& widget = open.widget (id);
        const auto area = open.editor->getLocalArea (&widget, widget.getLocalBounds());
        picture = open.editor->createComponentSnapshot (area, true, scale);
        size = static_cast<float> (juce::jmin (area.getWidth(), area.getHeight())) * scale;
        centre = picture.getBounds().toFloat().getCentre();
    }

    /** The middle of the ring at a part of its sweep. */
    juce::Colour onRing (float position) const
    {
        const auto angle = juce::degreesToRadians (startAngle + position * (endAngle - startAngle));
        return at (centre.getPointOnCircumference ((0.45f - 0.013f) * size, angle));
    }

    /** Between the pointer's bright disc and the edge of its dark one, towards the knob's middle. */
    juce::Colour inCap (float position) const
    {
        const auto angle = juce::degreesToRadians (startAngle + position * (endAngle - startAngle));
        const auto capRadius = 3.0f * 0.026f * size;
        const auto distance = (0.45f - 0.013f) * size - 0.69f * capRadius;
        return at (centre.getPointOnCircumference (distance, angle));
    }

private:
    juce::Colour at (juce::Point<float> point) const
    {
        const auto pixel = point.toInt();
        return picture.getPixelAt (pixel.x, pixel.y);
    }

    static constexpr float scale = 4.0f;
    juce::Image picture;
    float size = 0.0f;
    juce::Point<float> centre;
};

bool isLike (juce::Colour a, juce::Colour b)
{
    const auto near = [] (int x, int y) { return std::abs (x - y) <= 6; };
    return near (a.getRed(), b.getRed()) && near (a.getGreen(), b.getGreen())
           && near (a.getBlue(), b.getBlue());
}

#define EXPECT_COLOUR(actual, expected)     \
    EXPECT_PRED2 (isLike, actual, expected) \
        << (actual).toString() << " instead of " << (expected).toString()

juce::Colour over (juce::Colour colour, float alpha)
{
    return background.overlaidWith (colour.withMultipliedAlpha (alpha));
}

} // namespace

TEST (Knob, DrawsTheValueUpToThePointerAndTheTrackBeyond)
{
    OpenEditor open;
    open.processor.set ("drive", 50.0);
    const KnobPicture knob (open, "drive");

    for (const auto position : { 0.02f, 0.2f, 0.4f })
        EXPECT_COLOUR (knob.onRing (position), red);

    EXPECT_COLOUR (knob.onRing (0.5f), red); // the pointer
    EXPECT_COLOUR (knob.inCap (0.5f), background);

    for (const auto position : { 0.6f, 0.8f, 0.98f })
        EXPECT_COLOUR (knob.onRing (position), track);
}

TEST (Knob, DrawsTheStretchThatTheModulationPulls)
{
    OpenEditor open;
    open.processor.set ("drive", 80.0);
    open.processor.set ("driveModDepth", 25.0); // pulls from 80 down to 60
    const KnobPicture knob (open, "drive");
    EXPECT_COLOUR (knob.onRing (0.57f), red);
    EXPECT_COLOUR (knob.onRing (0.63f), gold);
    EXPECT_COLOUR (knob.onRing (0.74f), gold);
    EXPECT_COLOUR (knob.onRing (0.8f), gold);
    EXPECT_COLOUR (knob.onRing (0.9f), track);
}

TEST (Knob, IsFaintWhileDisabled)
{
    OpenEditor open;
    open.processor.set ("lowpassFreq", 1000.0); // mid travel
    open.processor.set ("bypassFilter", 1.0);
    const KnobPicture knob (open, "lowpassFreq");
    EXPECT_COLOUR (knob.onRing (0.8f), over (track, 0.4f));
    EXPECT_COLOUR (knob.onRing (0.2f),
                   over (over (track, 0.4f), 1.0f).overlaidWith (red.withMultipliedAlpha (0.4f)));
}

TEST (Knob, TurnsBlueInRingAndPointerWhenFrozen)
{
    OpenEditor open;
    open.processor.set ("crush", 50.0);
    open.processor.param ("crush").changeFrozen (true);
    const KnobPicture knob (open, "crush");
    EXPECT_COLOUR (knob.onRing (0.2f), frozen);
    EXPECT_COLOUR (knob.onRing (0.5f), frozen);
    EXPECT_COLOUR (knob.onRing (0.8f), track);
}

TEST (Look, TakesMenuFontsFromTheReferenceHeight)
{
    VorloLookAndFeel product;
    zembra::PluginHeaderLookAndFeel header;
    header.setHeaderFontRatio (0.02f);

    const std::tuple<int, float, float> cases[] = {
        { 150, 11.0f, 11.0f }, { 330, 11.0f, 11.0f }, { 600, 20.0f, 12.0f }, { 1620, 54.0f, 32.4f }
    };

    for (const auto& [height, productFont, headerFont] : cases)
    {
        product.setReferenceHeight (height);
        header.setReferenceHeight (height);
        EXPECT_NEAR (product.getPopupMenuFont().getHeight(), productFont, 0.01f) << height;
        EXPECT_NEAR (header.getPopupMenuFont().getHeight(), headerFont, 0.01f) << height;
    }
}

TEST (Look, SetsButtonTextsAsLargeAsTheyFit)
{
    VorloLookAndFeel look;
    juce::TextButton button ("Free");
    button.setLookAndFeel (&look);
    button.setSize (400, 40); // the height is what limits it
    EXPECT_NEAR (look.getTextButtonFont (button, 40).getHeight(), 32.0f, 0.1f);
    button.setSize (30, 40); // now it is the width
    const auto narrow = look.getTextButtonFont (button, 40);
    EXPECT_NEAR (narrow.getStringWidthFloat ("Free"), 0.8f * 30.0f, 0.5f);
    button.setSize (4, 40);
    EXPECT_EQ (look.getTextButtonFont (button, 40).getHeight(), 8.0f);
    button.setLookAndFeel (nullptr);
}

TEST (Look, SetsTextsWithoutBackgroundLargerInsideADropDown)
{
    OpenEditor open;
    VorloTransparentButtonLookAndFeel look;
    juce::TextButton alone ("1/4");
    EXPECT_FLOAT_EQ (look.getTextButtonFont (alone, 40).getHeight(), 22.0f);

    auto& panel = open.panelOf ("lfoFreeRate");
    zembra::ButtonsDropDownList* list = nullptr;

    for (auto* child : panel.getChildren())
        if (auto* found = dynamic_cast<zembra::ButtonsDropDownList*> (child))
            list = found;

    ASSERT_NE (list, nullptr);
    auto& main = dynamic_cast<juce::TextButton&> (list->getMainButton());
    EXPECT_FLOAT_EQ (look.getTextButtonFont (main, 40).getHeight(), 36.0f);
}

TEST (Look, GivesTheHeaderOneAccent)
{
    zembra::PluginHeaderLookAndFeel header;
    header.setAccentColour (red);

    for (const int id : { 0x0cd19812, 0x0cdaa210, 0x0ced29c2,
                          static_cast<int> (juce::PopupMenu::highlightedTextColourId),
                          static_cast<int> (juce::TextButton::textColourOnId) })
        EXPECT_EQ (header.findColour (id), red) << id;
}

TEST (Look, KnowsTheProductsColours)
{
    VorloLookAndFeel look;
    const std::pair<int, juce::uint32> table[] = {
        { 0x0c098986, 0xff111111 }, { 0x0c098126, 0xff444444 }, { 0x0c098127, 0x66444444 },
        { 0x0cdaa210, 0xffc69858 }, { 0x0cdaa211, 0xff0088ee }, { 0x0ae0a910, 0xff808080 },
        { 0x0c3298da, 0xff111111 }, { 0x0c329823, 0xff000000 }, { 0x0c329824, 0xff292929 },
        { 0x0c32aada, 0x66111111 }, { 0x01320103, 0xffc69858 }, { 0x01320104, 0xff444444 },
        { 0x01320105, 0xff808080 }, { 0x0cd19812, 0xffb91b18 },
    };

    for (const auto& [id, colour] : table)
        EXPECT_EQ (look.findColour (id), juce::Colour (colour)) << std::hex << id;
}

TEST (Look, MakesSeparatorsHalfAPixelThickOnFineDisplays)
{
    VorloLookAndFeel look;
    EXPECT_EQ (look.getHairline(), 1.0f);
    look.setHiRes (true);
    EXPECT_EQ (look.getHairline(), 0.5f);
}

TEST (Look, NeverLacksATypeface)
{
    zembra::AboutAndPrefsLookAndFeel look;

    for (const int style : { juce::Font::plain, juce::Font::bold, juce::Font::italic })
    {
        const juce::Font font (juce::Font::getDefaultSansSerifFontName(), 14.0f, style);
        const auto typeface = look.getTypefaceForFont (font);
        ASSERT_NE (typeface, nullptr);
        EXPECT_GT (typeface->getStringWidth ("Vorlo"), 0.0f);
    }

    const auto substitute = look.getTypefaceForFont (juce::Font ("no such family", 14.0f, 0));
    ASSERT_NE (substitute, nullptr);
    EXPECT_GT (substitute->getStringWidth ("Vorlo"), 0.0f);
}
