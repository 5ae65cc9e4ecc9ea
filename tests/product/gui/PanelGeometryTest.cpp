// Where every part of the panels stands, at several sizes, against the rules worked out on their own.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/product/gui/EditorParts.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <map>

namespace
{

using Bounds = std::map<std::string, juce::Rectangle<int>>;

/** A product in single precision, rounded to the nearest integer, halves to the even one. */
int R (float factor, int length)
{
    return static_cast<int> (std::nearbyint (factor * static_cast<float> (length)));
}

int R (float value) { return static_cast<int> (std::nearbyint (value)); }

juce::Rectangle<int> box (int x, int y, int w, int h) { return { x, y, w, h }; }

/** The lower `height` pixels of a rectangle. */
juce::Rectangle<int> lowerPart (juce::Rectangle<int> area, int height)
{
    return box (area.getX(), area.getBottom() - height, area.getWidth(), height);
}

void expectFilterPanel (Bounds& expected, int W, int H)
{
    const int row = R (0.28f, H);
    const int tabsX = R (0.25f, row), tabsW = R (0.2f, W);
    const int kx = tabsX + tabsW + R (0.035f, W);
    const int knob = R (static_cast<float> (W - kx) / 2.1f);
    const int labelH = R (static_cast<float> (knob) / 3.3f);
    const auto freq = box (kx, row, knob, H - row);
    const auto res = box (kx + R (1.1f, knob), row, knob, H - row);
    expected["bypassFilter"] = box (0, 0, R (3.5f, row), row);
    expected["filterType"] = box (tabsX, R (1.5f, row), tabsW, H - 2 * row);
    expected["lowpassFreq"] = expected["hipassFreq"] = freq;
    expected["lowpassRes"] = expected["hipassRes"] = res;
    expected["label freq"] = lowerPart (freq, labelH);
    expected["label res"] = lowerPart (res, labelH);
}

void expectLfoPanel (Bounds& expected, int W, int H, int EW, int EH)
{
    const int centreY = R (0.5f, H), labelH = R (static_cast<float> (H) / 3.5f);
    const int tabH = R (0.15f, EH), tabW = R (0.06f, EW);
    const auto knob = box (tabW + R (0.015f, EW), 0, H, H);
    const int insetY = R (1.2f, labelH);
    const int waveH = R (0.8f, H), wx = knob.getRight() + R (0.02f, EW);
    expected["lfoSyncOrFree"] = box (0, centreY - tabH / 2, tabW, tabH);
    expected["lfoFreeRate"] = expected["lfoSyncedPeriod"] = knob;
    expected["period list"] = box (knob.getX() + labelH, insetY, H - 2 * labelH, H - 2 * insetY);
    expected["label rate"] = lowerPart (knob, labelH);
    expected["lfoWaveform"] = box (wx, centreY - waveH / 2, W - wx, waveH);
}

void expectDepthPanel (Bounds& expected, int W, int H)
{
    const int size = std::min (R (static_cast<float> (W) / 6.0f), R (0.8f, H));
    const int gap = R (static_cast<float> (size) / 6.0f), y = R (0.5f, H - size);
    const char* ids[] = { "driveModDepth", "crushModDepth", "downsampModDepth",
                          "filterFreqModDepth", "filterResModDepth" };
    const char* labels[] = { "drive", "crush", "dwsp", "freq", "res" };

    for (int i = 0; i < 5; ++i)
    {
        const auto knob = box (gap + i * (size + gap), y, size, size);
        expected[ids[i]] = knob;
        expected[std::string ("depth label ") + labels[i]] = lowerPart (knob, R (0.25f, size));
    }
}

Bounds expectEditor (int EW, int EH)
{
    Bounds expected;
    const int headerH = R (0.14f, EH), footerH = R (0.09f, EH);
    const int W = EW, H = EH - headerH - footerH;
    expected["main"] = box (0, headerH, W, H);

    const int knob = R (0.41f, H), labelH = R (0.25f, knob), row = R (0.1f, H);
    const int knobY = R (0.27f, H) - knob / 2, x0 = R (0.022f, W);
    const char* ids[] = { "drive", "crush", "downsamp" };
    const char* labels[] = { "label drive", "label crush", "label dwsp" };
    int x = x0;

    for (int i = 0; i < 3; ++i, x += x0 + knob)
    {
        expected[ids[i]] = box (x, knobY, knob, knob);
        expected[labels[i]] = box (x, knobY + knob - labelH, knob, labelH);
    }

    expected["filter panel"] = box (x, knobY, R (0.26f, W), knob);
    expectFilterPanel (expected, R (0.26f, W), knob);

    const int fw = R (0.1f, W), faderX = R (0.77f, W), second = faderX + R (1.07f, fw);
    const int faderY = row + knobY, faderH = H - 2 * knobY - row, half = R (0.5f, row);
    expected["dry"] = box (faderX, faderY, fw, faderH);
    expected["wet"] = box (second, faderY, fw, faderH);
    expected["bypassDrySignal"] = box (faderX + half, faderY - row, fw, row);
    expected["bypassWetSignal"] = box (second + half, faderY - row, fw, row);

    const int link = R (0.7f, row), plateH = faderH - R (1.3f, link);
    const int lx = R (0.5f * static_cast<float> (second - link - fw - faderX)
                      + static_cast<float> (fw + faderX));
    expected["left plate"] = box (faderX, faderY, R (0.25f, fw), plateH);
    expected["middle plate"] = box (faderX + R (0.75f, fw), faderY, R (0.6f, fw), plateH);
    expected["right plate"] = box (second + R (0.75f, fw), faderY, R (0.25f, fw), plateH);
    expected["dryWetLink"] = box (lx, faderY + faderH - R (2.8f, link), link, link);

    const int lfoH = R (0.3f, H), lfoY = R (0.79f, H) - lfoH / 2, dw = R (4.55f, lfoH);
    expected["lfo panel"] = box (x0, lfoY, R (0.27f, W), lfoH);
    expectLfoPanel (expected, R (0.27f, W), lfoH, EW, EH);
    expectDepthPanel (expected, dw, lfoH);

    const int above = x + expected["hipassRes"].getCentreX();
    const int depthX = above - expected["filterResModDepth"].getCentreX();
    const int titleH = R (0.8f, row);
    expected["depth panel"] = box (depthX, lfoY, dw, lfoH);
    expected["label M O D U L A T I O N S"] =
        box (depthX, R (0.58f, H) - titleH / 2, R (0.2f, W), titleH);
    return expected;
}

juce::Component& findPeriodList (const juce::Component& lfoPanel)
{
    for (auto* child : lfoPanel.getChildren())
        if (dynamic_cast<zembra::ButtonsDropDownList*> (child) != nullptr)
            return *child;

    throw std::runtime_error ("no period list");
}

Bounds measureEditor (OpenEditor& open)
{
    Bounds measured;
    const juce::Component& main = open.editor->getMainComponent();
    measured["main"] = main.getBounds();

    for (auto* widget : open.editor->getWidgets())
        measured[widget->getParam().getId().toStdString()] = widget->getBounds();

    const auto& filter = open.panelOf ("lowpassFreq");
    const auto& lfo = open.panelOf ("lfoFreeRate");
    const auto& depth = open.panelOf ("driveModDepth");
    measured["filter panel"] = filter.getBounds();
    measured["lfo panel"] = lfo.getBounds();
    measured["depth panel"] = depth.getBounds();
    measured["period list"] = findPeriodList (lfo).getBounds();

    for (const auto* text : { "drive", "crush", "dwsp", "M O D U L A T I O N S" })
        measured[std::string ("label ") + text] = OpenEditor::label (main, text).getBounds();

    for (const auto* text : { "freq", "res" })
        measured[std::string ("label ") + text] = OpenEditor::label (filter, text).getBounds();

    for (const auto* text : { "drive", "crush", "dwsp", "freq", "res" })
        measured[std::string ("depth label ") + text] = OpenEditor::label (depth, text).getBounds();

    measured["label rate"] = OpenEditor::label (lfo, "rate").getBounds();

    // The plates come right after the faders, and cover their edges.
    const auto afterFaders = main.getIndexOfChildComponent (&open.widget ("wet"));
    const char* plates[] = { "left plate", "middle plate", "right plate" };

    for (int i = 0; i < 3; ++i)
        measured[plates[i]] = main.getChildComponent (afterFaders + 1 + i)->getBounds();

    return measured;
}

std::string describe (juce::Rectangle<int> area) { return area.toString().toStdString(); }

} // namespace

class PanelGeometry : public testing::TestWithParam<std::pair<int, int>>
{
};

TEST_P (PanelGeometry, FollowsItsRulesToThePixel)
{
    const auto [width, height] = GetParam();
    OpenEditor open (width, height);
    ASSERT_EQ (open.editor->getWidth(), width);
    ASSERT_EQ (open.editor->getHeight(), height);
    const auto expected = expectEditor (width, height);
    const auto measured = measureEditor (open);
    ASSERT_EQ (measured.size(), expected.size());

    for (const auto& [name, area] : expected)
        EXPECT_EQ (describe (measured.at (name)), describe (area)) << name;
}

TEST_P (PanelGeometry, IsTheSameWhicheverSizeCameBefore)
{
    const auto [width, height] = GetParam();
    OpenEditor fresh (width, height), resized (width + 1, height + 1);
    resized.editor->setSize (width + 1, height);
    resized.editor->setSize (width, height);
    EXPECT_EQ (measureEditor (fresh), measureEditor (resized));
}

TEST_P (PanelGeometry, KeepsTheResonanceDepthBelowTheResonance)
{
    const auto [width, height] = GetParam();
    OpenEditor open (width, height);
    const auto centreOf = [&open] (const char* id)
    {
        auto& widget = open.widget (id);
        return open.editor->getLocalPoint (&widget, widget.getLocalBounds().getCentre()).x;
    };
    EXPECT_EQ (centreOf ("filterResModDepth"), centreOf ("hipassRes"));
    EXPECT_EQ (centreOf ("filterResModDepth"), centreOf ("lowpassRes"));
}

INSTANTIATE_TEST_SUITE_P (Sizes, PanelGeometry,
                          testing::Values (std::pair{ 750, 316 }, std::pair{ 300, 150 },
                                           std::pair{ 356, 150 }, std::pair{ 1000, 422 },
                                           std::pair{ 751, 317 }, std::pair{ 640, 480 },
                                           std::pair{ 1913, 807 }, std::pair{ 3840, 1620 }),
                          [] (const auto& size) {
                              return std::to_string (size.param.first) + "x"
                                     + std::to_string (size.param.second);
                          });

TEST (PanelGeometryByHand, AtTheDefaultSize)
{
    OpenEditor open;
    const auto measured = measureEditor (open);
    const std::map<std::string, juce::Rectangle<int>> byHand{
        { "main", { 0, 44, 750, 244 } },           { "drive", { 16, 16, 100, 100 } },
        { "downsamp", { 248, 16, 100, 100 } },     { "label dwsp", { 248, 91, 100, 25 } },
        { "filter panel", { 364, 16, 195, 100 } }, { "filterType", { 7, 42, 39, 44 } },
        { "dry", { 578, 40, 75, 188 } },           { "wet", { 658, 40, 75, 188 } },
        { "lfo panel", { 16, 157, 203, 73 } },     { "lfoFreeRate", { 56, 0, 73, 73 } },
    };

    for (const auto& [name, area] : byHand)
        EXPECT_EQ (describe (measured.at (name)), describe (area)) << name;
}
