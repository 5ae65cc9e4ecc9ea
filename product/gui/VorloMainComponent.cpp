// Construction, state and painting of the main panel.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/gui/VorloMainComponent.h"

#include "framework/gui/lookandfeel/ColourIds.h"
#include "product/resources/art/VorloArt.h"

VorloMainComponent::VorloMainComponent (VorloProcessor& processor, zembra::PluginEditor& editor,
                                        juce::LookAndFeel& iconLookAndFeel)
    : drive{ findParam (processor, paramId::driveModDepth) },
      crush{ findParam (processor, paramId::crushModDepth) },
      downsamp{ findParam (processor, paramId::downsampModDepth) },
      dry{ findParam (processor, paramId::bypassDrySignal) },
      wet{ findParam (processor, paramId::bypassWetSignal) },
      filterPanel (processor, editor, iconLookAndFeel),
      depthPanel (processor, editor),
      lfoPanel (processor, editor, iconLookAndFeel)
{
    addLabel (*this, drive.label, "drive");
    addLabel (*this, crush.label, "crush");
    addLabel (*this, downsamp.label, "dwsp");
    addLabel (*this, modulationsLabel, "M O D U L A T I O N S");

    addKnobs (processor, editor);
    addAndMakeVisible (filterPanel);
    addFaders (processor, editor);

    for (auto* plate : { &leftPanel, &middlePanel, &rightPanel })
        addAndMakeVisible (plate);

    addMixSwitches (processor, editor);
    addAndMakeVisible (depthPanel);
    addAndMakeVisible (lfoPanel);
    setColours();
    setFocusOrder();
    setOpaque (true);

    for (auto* param : getWatchedParams())
        param->addListener (this);

    startTimer (panelTimerPeriod);
}

VorloMainComponent::~VorloMainComponent()
{
    for (auto* param : getWatchedParams())
        param->removeListener (this);
}

std::array<zembra::Param*, 5> VorloMainComponent::getWatchedParams()
{
    return { &drive.depth, &crush.depth, &downsamp.depth, &dry.bypass, &wet.bypass };
}

void VorloMainComponent::addKnobs (VorloProcessor& processor, zembra::PluginEditor& editor)
{
    drive.knob =
        addControlledKnob (processor, editor, *this, paramId::drive, "Adjust the drive level");
    crush.knob =
        addControlledKnob (processor, editor, *this, paramId::crush, "Crush : bit depth reduction");
    downsamp.knob = addControlledKnob (processor, editor, *this, paramId::downsamp,
                                       "Downsample : sample rate reduction");
}

void VorloMainComponent::addFaders (VorloProcessor& processor, zembra::PluginEditor& editor)
{
    const auto add = [&] (const char* id, const char* help)
    {
        return addFader (processor, editor, *this, id, juce::Slider::LinearVertical,
                         juce::Slider::TextBoxBelow, help);
    };

    dry.fader = add (paramId::dry, "Amount of dry signal in the output mix");
    wet.fader = add (paramId::wet, "Amount of wet signal in the output mix");
}

void VorloMainComponent::addMixSwitches (VorloProcessor& processor, zembra::PluginEditor& editor)
{
    const auto add = [&] (MixChannel& channel, const char* id, const char* text, const char* title,
                          const char* help)
    {
        channel.toggle = addBypassToggle (processor, editor, *this, id, text);
        channel.toggle->setTooltip (juce::translate (help));
        channel.toggle->getButton().setTitle (title);
        channel.toggle->getButton().setDescription (juce::translate (help));
    };

    add (dry, paramId::bypassDrySignal, "DRY", "Dry signal", "Enable or disable the dry signal");
    add (wet, paramId::bypassWetSignal, "WET", "Wet signal", "Enable or disable the wet signal");

    linkToggle = editor.addWidget (
        std::make_unique<zembra::Toggle> (processor, paramId::dryWetLink, vorloArt::makeLinkIcon()),
        this);
    linkToggle->setShowsValueBubble (false);
    linkToggle->setTooltip (juce::translate ("Link dry and wet gains"));
    linkToggle->getButton().setDescription (juce::translate ("Link dry and wet gains"));
}

void VorloMainComponent::setColours()
{
    const juce::Colour driveAccent{ 0xffb91b18 };
    const juce::Colour modAccent{ 0xffc69858 };
    const auto setAccent = [] (juce::Component& component, juce::Colour accent)
    {
        setColourRecursive (component, zembra::knobValueColourId, accent);
        setColourRecursive (component, zembra::toggleTextColourId, accent);
    };

    for (auto* component : std::initializer_list<juce::Component*>{
             &filterPanel, drive.knob, crush.knob, downsamp.knob, dry.fader, wet.fader, dry.toggle,
             wet.toggle, linkToggle })
        setAccent (*component, driveAccent);

    setAccent (depthPanel, modAccent);
    setAccent (lfoPanel, modAccent);
    setColourRecursive (lfoPanel, juce::TextButton::textColourOnId, modAccent);
    setColourRecursive (lfoPanel, juce::TextButton::textColourOffId, juce::Colour (0xff808080));

    for (auto* component : std::initializer_list<juce::Component*>{ &filterPanel, drive.knob,
                                                                    crush.knob, downsamp.knob })
        setColourRecursive (*component, zembra::knobModColourId, modAccent);

    setColourRecursive (*this, zembra::frozenColourId, juce::Colour (0xff006d91));
}

void VorloMainComponent::setFocusOrder()
{
    for (int order = 1; auto* component : std::initializer_list<juce::Component*>{
                            drive.knob, crush.knob, downsamp.knob, &filterPanel, dry.toggle,
                            dry.fader, wet.toggle, wet.fader, linkToggle, &lfoPanel, &depthPanel })
        component->setExplicitFocusOrder (order++);
}

void VorloMainComponent::paramChanged (zembra::Param* param, double, double, int)
{
    if (param == &dry.bypass)
        dry.bypassChanged = true;
    else if (param == &wet.bypass)
        wet.bypassChanged = true;
    else
        depthChanged = true;
}

void VorloMainComponent::timerCallback()
{
    if (depthChanged)
    {
        depthChanged = false;

        for (auto* target : { &drive, &crush, &downsamp })
            target->knob->setModDepth (
                static_cast<float> (target->depth.normalise (target->depth.getValue())));
    }

    for (auto* channel : { &dry, &wet })
    {
        if (channel->bypassChanged)
        {
            channel->bypassChanged = false;
            channel->fader->setEnabled (0.5 > channel->bypass.getValue());
        }
    }

    linkToggle->setEnabled (dry.fader->isEnabled() || wet.fader->isEnabled());
}

void VorloMainComponent::paint (juce::Graphics& g)
{
    g.fillAll (findColour (zembra::mainBackgroundColourId));

    // One rule across the panel, with a gap for the title.
    const auto left = partOf (getWidth(), 0.015f);
    const auto right = partOf (getWidth(), 0.76f);
    const auto y = partOf (getHeight(), 0.58f);
    const auto thickness = getHeight() / 100;
    g.setColour (findColour (zembra::separatorColourId));
    g.fillRect (left, y, modulationsLabel->getX() - left, thickness);
    g.fillRect (modulationsLabel->getRight(), y, right - modulationsLabel->getRight(), thickness);
}

void VorloMainComponent::SimplePanel::paint (juce::Graphics& g)
{
    g.fillAll (findColour (zembra::mainBackgroundColourId));
}
