// Controls, state and layout of the filter panel.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/gui/FilterComp.h"

#include "framework/gui/widgets/FilledPathButton.h"
#include "product/resources/art/VorloArt.h"

FilterComp::FilterComp (VorloProcessor& processor, zembra::PluginEditor& editor,
                        juce::LookAndFeel& iconLookAndFeel)
    : bypassFilter (findParam (processor, paramId::bypassFilter)),
      filterType (findParam (processor, paramId::filterType)),
      filterFreqModDepth (findParam (processor, paramId::filterFreqModDepth)),
      filterResModDepth (findParam (processor, paramId::filterResModDepth))
{
    addLabel (*this, freqLabel, "freq");
    addLabel (*this, resLabel, "res");

    bypassToggle = addBypassToggle (processor, editor, *this, paramId::bypassFilter, "F I L T E R");
    bypassToggle->setStateTooltips (juce::translate ("Turn on the filter"),
                                    juce::translate ("Bypass the filter"));
    bypassToggle->setTooltip (juce::translate (
        bypassFilter.getValue() <= 0.5 ? "Bypass the filter" : "Turn on the filter"));
    bypassToggle->getButton().setTitle ("Filter");
    bypassToggle->setColour (juce::ToggleButton::textColourId, juce::Colour (0xff808080));

    addTypeTabs (processor, editor, iconLookAndFeel);

    const juce::String freqHelp ("Adjust the filter's cutoff frequency");
    const juce::String resHelp ("Adjust the filter's resonance");
    const auto addKnob = [&] (const char* id, const juce::String& help)
    { return addControlledKnob (processor, editor, *this, id, help); };
    lowpassFreqKnob = addKnob (paramId::lowpassFreq, freqHelp);
    lowpassResKnob = addKnob (paramId::lowpassRes, resHelp);
    hipassFreqKnob = addKnob (paramId::hipassFreq, freqHelp);
    hipassResKnob = addKnob (paramId::hipassRes, resHelp);

    for (int order = 1; auto* control : { static_cast<juce::Component*> (bypassToggle),
                                          static_cast<juce::Component*> (typeTabs),
                                          static_cast<juce::Component*> (lowpassFreqKnob),
                                          static_cast<juce::Component*> (lowpassResKnob),
                                          static_cast<juce::Component*> (hipassFreqKnob),
                                          static_cast<juce::Component*> (hipassResKnob) })
        control->setExplicitFocusOrder (order++);

    for (auto* param : { &bypassFilter, &filterType, &filterFreqModDepth, &filterResModDepth })
        param->addListener (this);

    startTimer (panelTimerPeriod);
}

FilterComp::~FilterComp()
{
    for (auto* param : { &bypassFilter, &filterType, &filterFreqModDepth, &filterResModDepth })
        param->removeListener (this);
}

void FilterComp::addTypeTabs (VorloProcessor& processor, zembra::PluginEditor& editor,
                              juce::LookAndFeel& iconLookAndFeel)
{
    typeTabs = editor.addWidget (
        std::make_unique<zembra::TabWidget> (processor, paramId::filterType), this);
    typeTabs->setShowsValueBubble (false);
    typeTabs->setNumRows (2);

    const juce::StringArray help{ juce::translate ("Set the filter type to low-pass"),
                                  juce::translate ("Set the filter type to high-pass") };
    const auto addIcon = [&] (int index, const char* name, const juce::Path& path)
    {
        auto icon = std::make_unique<zembra::FilledPathButton> (name, path);
        icon->setInsets (juce::BorderSize<int> (2));
        icon->setLookAndFeel (&iconLookAndFeel);
        icon->setTitle (name);
        icon->setDescription (help[index]);
        typeTabs->setButton (index, std::move (icon));
    };

    addIcon (0, "Low-pass", vorloArt::makeLowPassIcon());
    addIcon (1, "High-pass", vorloArt::makeHighPassIcon());
    typeTabs->setTooltips (help);
}

void FilterComp::paramChanged (zembra::Param* param, double, double, int)
{
    if (param == &bypassFilter || param == &filterType)
        stateChanged = true;
    else
        depthChanged = true;
}

void FilterComp::timerCallback()
{
    if (stateChanged)
    {
        stateChanged = false;
        showState();
    }

    if (depthChanged)
    {
        depthChanged = false;
        showDepths();
    }
}

void FilterComp::showState()
{
    const auto isOn = bypassFilter.getValue() <= 0.5;
    const auto isLowpass = filterType.getValue() == 0.0;

    for (auto* control : { static_cast<juce::Component*> (typeTabs),
                           static_cast<juce::Component*> (lowpassFreqKnob),
                           static_cast<juce::Component*> (lowpassResKnob),
                           static_cast<juce::Component*> (hipassFreqKnob),
                           static_cast<juce::Component*> (hipassResKnob),
                           static_cast<juce::Component*> (freqLabel.get()),
                           static_cast<juce::Component*> (resLabel.get()) })
        control->setEnabled (isOn);

    for (auto* knob : { lowpassFreqKnob, lowpassResKnob })
        knob->setVisible (isLowpass);

    for (auto* knob : { hipassFreqKnob, hipassResKnob })
        knob->setVisible (! isLowpass);
}

void FilterComp::showDepths()
{
    const auto readDepth = [] (const zembra::Param& param)
    { return static_cast<float> (param.normalise (param.getValue())); };

    for (auto* knob : { lowpassFreqKnob, hipassFreqKnob })
        knob->setModDepth (readDepth (filterFreqModDepth));

    for (auto* knob : { lowpassResKnob, hipassResKnob })
        knob->setModDepth (readDepth (filterResModDepth));
}

void FilterComp::resized()
{
    const auto width = getWidth();
    const auto height = getHeight();

    const auto row = partOf (height, 0.28f);
    bypassToggle->setBounds (0, 0, partOf (row, 3.5f), row);
    typeTabs->setBounds (partOf (row, 0.25f), partOf (row, 1.5f), partOf (width, 0.2f),
                         height - 2 * row);

    const auto knobX = typeTabs->getRight() + partOf (width, 0.035f);
    const auto knob = juce::roundToInt (static_cast<float> (width - knobX) / 2.1f);
    const auto labelHeight = juce::roundToInt (static_cast<float> (knob) / 3.3f);
    const juce::Rectangle<int> freqBounds (knobX, row, knob, height - row);
    const auto resBounds = freqBounds.translated (partOf (knob, 1.1f), 0);

    lowpassFreqKnob->setBounds (freqBounds);
    hipassFreqKnob->setBounds (freqBounds);
    lowpassResKnob->setBounds (resBounds);
    hipassResKnob->setBounds (resBounds);
    freqLabel->setBounds (freqBounds.withTop (freqBounds.getBottom() - labelHeight));
    resLabel->setBounds (resBounds.withTop (resBounds.getBottom() - labelHeight));
}
