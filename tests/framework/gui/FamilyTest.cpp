// The widgets and companions that not every product uses.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/ButtonsDropDownListWidget.h"
#include "framework/gui/widgets/Fader.h"
#include "framework/gui/widgets/ImageDropDownList.h"
#include "framework/gui/widgets/PopupBubbleComponent.h"
#include "framework/gui/widgets/TipsComponent.h"
#include "framework/gui/widgets/Toggle.h"
#include "framework/gui/widgets/TooltipDisplayComponent.h"
#include "framework/gui/widgets/TwoValueFader.h"
#include "tests/support/EditListener.h"
#include "tests/support/TestProcessor.h"
#include "tests/support/TestWindow.h"

#include <gtest/gtest.h>

namespace
{

constexpr int lowpassResIndex = 14;
constexpr int hipassResIndex = 16;

} // namespace

TEST (TwoValueFader, TheThumbDecidesTheParameter)
{
    TestProcessor vorlo;
    EditListener host (vorlo.processor);
    vorlo.set (paramId::lowpassRes, 0.25);
    vorlo.set (paramId::hipassRes, 0.75);
    zembra::TwoValueFader fader (vorlo.processor, paramId::lowpassRes, paramId::hipassRes,
                                 juce::Slider::TwoValueHorizontal);
    fader.setSize (400, 100);
    TestWindow window (fader);
    fader.pollParam();
    auto& slider = fader.getSlider();
    EXPECT_EQ (slider.getHeight(), 90);
    const auto grab = [&] (double value)
    {
        window.press (slider, { juce::roundToInt (slider.getPositionOfValue (value)), 45 });
        return host.openGestures;
    };

    EXPECT_EQ (grab (0.25), juce::Array<int>{ lowpassResIndex });
    window.dragBy ({ 40, 0 });
    window.release();
    EXPECT_GT (vorlo.get (paramId::lowpassRes), 0.3);
    EXPECT_EQ (vorlo.get (paramId::hipassRes), 0.75);
    EXPECT_EQ (grab (0.75), juce::Array<int>{ hipassResIndex });
    window.dragBy ({ 40, 0 });
    window.release();
    EXPECT_GT (vorlo.get (paramId::hipassRes), 0.8);
    EXPECT_EQ (host.changesOutsideGestures, 0);
    EXPECT_EQ (host.numBegun, 2);
    EXPECT_EQ (host.numEnded, 2);

    fader.getLabel (1).setText ("0.9", juce::sendNotificationSync);
    EXPECT_NEAR (vorlo.get (paramId::hipassRes), 0.9, 1e-6);
    vorlo.set (paramId::lowpassRes, 0.1);
    fader.pollParam();
    EXPECT_NEAR (slider.getMinValue(), 0.1, 1e-6);
    EXPECT_EQ (fader.getLabel (0).getText(), "0.10 ");
}

TEST (DropDownWidgets, TheIndexIsTheValue)
{
    TestProcessor vorlo;
    EditListener host (vorlo.processor);
    zembra::ButtonsPopupMenu::Buttons buttons;

    for (int i = 0; i < 33; ++i)
        buttons.push_back (std::make_unique<juce::TextButton> (juce::String (i)));

    zembra::ButtonsDropDownListWidget list (vorlo.processor, paramId::lfoSyncedPeriod,
                                            std::move (buttons));
    zembra::ImageDropDownList images (vorlo.processor, paramId::lfoWaveform);

    for (int i = 0; i < 4; ++i)
        images.addImage (juce::Image (juce::Image::ARGB, 4 + i, 4, true));

    list.pollParam();
    EXPECT_EQ (list.getList().getSelectedIndex(), 19);
    EXPECT_EQ (list.getList().getMainButton().getButtonText(), "19");

    list.getList().getMenu().setSelected (7, true);
    EXPECT_EQ (vorlo.get (paramId::lfoSyncedPeriod), 7.0);
    images.choose (2);
    EXPECT_EQ (vorlo.get (paramId::lfoWaveform), 2.0);
    EXPECT_EQ (images.getButton().getNormalImage()->getDrawableBounds().getWidth(), 6.0f);
    EXPECT_EQ (host.numBegun, 2);
    EXPECT_EQ (host.changesOutsideGestures, 0);

    vorlo.set (paramId::lfoWaveform, 3.0);
    images.pollParam();
    EXPECT_EQ (images.getButton().getNormalImage()->getDrawableBounds().getWidth(), 7.0f);
    EXPECT_TRUE (vorlo.processor.getUndoManager().undo());
    EXPECT_TRUE (vorlo.processor.getUndoManager().undo());
    EXPECT_EQ (vorlo.get (paramId::lfoSyncedPeriod), 19.0);
}

TEST (TooltipDisplay, ShowsTheTipUnderTheMouse)
{
    TestProcessor vorlo;
    juce::Component page;
    page.setSize (400, 200);
    zembra::TooltipDisplayComponent display ("default");
    zembra::Toggle toggle (vorlo.processor, paramId::bypassFilter,
                           std::make_unique<juce::ToggleButton>());
    toggle.setTooltip ("before");
    toggle.setStateTooltips ("off now", "on now");
    toggle.setBounds (0, 0, 100, 50);
    display.setBounds (0, 100, 400, 50);
    page.addAndMakeVisible (toggle);
    page.addAndMakeVisible (display);
    TestWindow window (page);
    toggle.pollParam();

    const auto expectText = [&] (const juce::String& text)
    {
        TestWindow::runMessages (250);
        EXPECT_EQ (display.getShownText(), text);
    };

    expectText ("default");
    window.moveTo (toggle, { 10, 10 });
    expectText ("before");
    window.click (toggle);
    expectText ("off now");
    window.moveTo (page, { 390, 10 });
    expectText ("default");
}

TEST (Tips, ListsSixAndIgnoresEmptyOnes)
{
    zembra::TipsComponent tips;
    EXPECT_EQ (tips.getNumTips(), 6);
    tips.addTip ({});
    EXPECT_EQ (tips.getNumTips(), 6);
    tips.addTip ("last");
    const auto bullet = juce::String::charToString (0x2022);
    EXPECT_TRUE (tips.getText().startsWith (bullet + "  The interface is fully resizable"));
    EXPECT_TRUE (tips.getText().endsWith ("\n\n" + bullet + "  last\n\n"));
}

TEST (ValueBubble, ComesWithTheMouseAndGoesWithIt)
{
    if (! TestWindow::hasDisplay())
        GTEST_SKIP() << "needs a display";

    TestProcessor vorlo;
    zembra::Fader fader (vorlo.processor, paramId::drive, juce::Slider::LinearVertical);
    fader.setSize (100, 100);
    TestWindow window (fader);
    fader.pollParam();
    window.moveTo (fader, { 50, 50 });
    ASSERT_NE (fader.getBubble(), nullptr);
    EXPECT_FALSE (fader.getBubble()->isVisible());
    TestWindow::runMessages (300);
    EXPECT_TRUE (fader.getBubble()->isVisible());
    EXPECT_EQ (fader.getBubble()->getText(), "0.0 %");
    EXPECT_GT (fader.getBubble()->getWidth(), 18);

    // Without a button down, so that nothing of the drag's own popup is in the way.
    vorlo.set (paramId::drive, 50.0);
    fader.pollParam();
    EXPECT_EQ (fader.getTooltip(), "50.0 %");
    window.moveTo (fader, { -20, -20 });
    EXPECT_EQ (fader.getBubble(), nullptr);

    fader.setupControl (juce::Slider::NoTextBox);
    window.moveTo (fader, { 50, 50 });
    EXPECT_EQ (fader.getBubble(), nullptr);
}
