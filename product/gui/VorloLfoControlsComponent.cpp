// Controls, faces and layout of the LFO panel.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/gui/VorloLfoControlsComponent.h"

#include "framework/gui/lookandfeel/ColourIds.h"
#include "framework/gui/widgets/FilledPathButton.h"
#include "product/gui/PeriodButtons.h"
#include "product/resources/art/VorloArt.h"

VorloLfoControlsComponent::VorloLfoControlsComponent (VorloProcessor& processorToUse,
                                                      zembra::PluginEditor& editorToUse,
                                                      juce::LookAndFeel& iconLookAndFeel)
    : processor (processorToUse),
      editor (editorToUse),
      lfoSyncOrFree (findParam (processor, paramId::lfoSyncOrFree)),
      lfoSyncedPeriod (findParam (processor, paramId::lfoSyncedPeriod))
{
    addLabel (*this, rateLabel, "rate");
    addSyncModeTabs();
    addRateControls();
    addWaveformTabs (iconLookAndFeel);
    setOpaque (true);
    startTimer (panelTimerPeriod);
}

VorloLfoControlsComponent::~VorloLfoControlsComponent()
{
    stopTimer();
    syncedRateKnob->removeMouseListener (this);
    syncedPeriodList->removeListener (this);
    syncedPeriodList.reset();
    rateLabel.reset();
}

void VorloLfoControlsComponent::addRateControls()
{
    freeRateKnob = addFader (processor, editor, *this, paramId::lfoFreeRate,
                             juce::Slider::RotaryHorizontalVerticalDrag, juce::Slider::TextBoxRight,
                             "Adjust the modulation speed");
    syncedRateKnob =
        addFader (processor, editor, *this, paramId::lfoSyncedPeriod,
                  juce::Slider::RotaryHorizontalVerticalDrag, juce::Slider::NoTextBox,
                  "Adjust the modulation speed (drag the knob, or click to open a menu)");
    freeRateKnob->setExplicitFocusOrder (2);
    syncedRateKnob->setExplicitFocusOrder (3);
    syncedRateKnob->addMouseListener (this, true);

    syncedPeriodList =
        std::make_unique<zembra::ButtonsDropDownList> (makePeriodButtons (transparentLookAndFeel));
    syncedPeriodList->setLookAndFeel (&transparentLookAndFeel);
    syncedPeriodList->getMainButton().setWantsKeyboardFocus (false);
    syncedPeriodList->setInterceptsMouseClicks (false, false);
    syncedPeriodList->addListener (this);
    addAndMakeVisible (*syncedPeriodList);
}

void VorloLfoControlsComponent::addSyncModeTabs()
{
    syncModeTabs = editor.addWidget (
        std::make_unique<zembra::TabWidget> (processor, paramId::lfoSyncOrFree), this);
    syncModeTabs->setShowsValueBubble (false);
    syncModeTabs->setNumRows (2);
    syncModeTabs->setExplicitFocusOrder (1);

    const juce::StringArray help{
        juce::translate (
            "Set the modulation speed to be independent of the host application tempo"),
        juce::translate ("Synchronize the modulation speed to the host application tempo")
    };

    for (int i = 0; const auto* text : { "Free", "Sync" })
    {
        auto button = std::make_unique<juce::TextButton> (text);
        button->setColour (juce::TextButton::buttonOnColourId, juce::Colours::transparentBlack);
        button->setTitle (text);
        button->setDescription (help[i]);
        syncModeTabs->setButton (i++, std::move (button));
    }

    syncModeTabs->setTooltips (help);
}

void VorloLfoControlsComponent::addWaveformTabs (juce::LookAndFeel& iconLookAndFeel)
{
    waveformTabs = editor.addWidget (
        std::make_unique<zembra::TabWidget> (processor, paramId::lfoWaveform), this);
    waveformTabs->setShowsValueBubble (false);
    waveformTabs->setNumRows (2);
    waveformTabs->setExplicitFocusOrder (4);

    for (int i = 0; const auto* name : { "Sine", "Square", "Triangle", "Random" })
    {
        auto icon = std::make_unique<zembra::FilledPathButton> (name, vorloArt::makeWaveIcon (i));
        icon->setInsets (juce::BorderSize<int> (3));
        icon->setLookAndFeel (&iconLookAndFeel);
        icon->setTitle (name);
        waveformTabs->setButton (i++, std::move (icon));
    }
}

void VorloLfoControlsComponent::mouseUp (const juce::MouseEvent& e)
{
    if (! e.mouseWasDraggedSinceMouseDown() && syncedRateKnob->isParentOf (e.eventComponent)
        && syncedPeriodList->isEnabled())
        syncedPeriodList->getMainButton().triggerClick();
}

void VorloLfoControlsComponent::timerCallback()
{
    const auto isFree = lfoSyncOrFree.getValue() <= 0.5;
    freeRateKnob->setVisible (isFree);
    syncedRateKnob->setVisible (! isFree);
    syncedPeriodList->setVisible (! isFree);
    syncedPeriodList->setEnabled (syncedRateKnob->isEnabled());
    syncedPeriodList->setSelectedIndex (juce::roundToInt (lfoSyncedPeriod.getValue()), false);
}

void VorloLfoControlsComponent::itemSelected (zembra::ButtonsDropDownList* list, int index)
{
    if (list != syncedPeriodList.get())
        return;

    // A step of its own in the undo history, whatever was edited last.
    processor.getUndoManager().beginNewTransaction();
    lfoSyncedPeriod.setValue (index, zembra::sourceLinked, &processor.getUndoManager());
}

void VorloLfoControlsComponent::paint (juce::Graphics& g)
{
    g.fillAll (findColour (zembra::mainBackgroundColourId));
}

void VorloLfoControlsComponent::resized()
{
    const auto width = getWidth();
    const auto height = getHeight();
    const auto centreY = partOf (height, 0.5f);
    const auto labelHeight = juce::roundToInt (static_cast<float> (height) / 3.5f);

    // The tabs and gaps follow the editor, so that they stay in step with the other panels.
    const auto tabHeight = partOf (editor.getHeight(), 0.15f);
    const auto tabWidth = partOf (editor.getWidth(), 0.06f);
    syncModeTabs->setBounds (0, centreY - tabHeight / 2, tabWidth, tabHeight);

    const juce::Rectangle<int> knob (syncModeTabs->getRight() + partOf (editor.getWidth(), 0.015f),
                                     0, height, height);
    freeRateKnob->setBounds (knob);
    syncedRateKnob->setBounds (knob);
    syncedPeriodList->setBounds (knob.reduced (labelHeight, partOf (labelHeight, 1.2f)));
    rateLabel->setBounds (knob.withTop (knob.getBottom() - labelHeight));

    const auto waveHeight = partOf (height, 0.8f);
    const auto waveX = knob.getRight() + partOf (editor.getWidth(), 0.02f);
    waveformTabs->setBounds (waveX, centreY - waveHeight / 2, width - waveX, waveHeight);
    transparentLookAndFeel.setReferenceHeight (editor.getHeight());
}
