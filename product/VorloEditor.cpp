// Construction and layout of the product's editor.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/VorloEditor.h"

#include "framework/gui/lookandfeel/ColourIds.h"
#include "framework/gui/widgets/TipsComponent.h"

namespace
{

constexpr int defaultWidth = 750;
constexpr int defaultHeight = 316;

int orDefault (int storedSize, int defaultSize)
{
    return storedSize < 1 ? defaultSize : storedSize;
}

} // namespace

VorloEditor::VorloEditor (VorloProcessor& processorToUse)
    : PluginEditor (processorToUse),
      vorloProcessor (processorToUse),
      makerLogo (vorloArt::makeMakerWordmark(), juce::RectanglePlacement::xLeft),
      productLogo (vorloArt::makeProductWordmark(), juce::RectanglePlacement::centred)
{
    setLookAndFeel (&lookAndFeel);
    setStripAccent (lookAndFeel.findColour (zembra::accentColourId));

    mainComponent =
        std::make_unique<VorloMainComponent> (vorloProcessor, *this, transparentButtonLookAndFeel);
    addAndMakeVisible (*mainComponent);
    mainComponent->sendLookAndFeelChange();

    getHeader().addAndMakeVisible (makerLogo);
    getHeader().addAndMakeVisible (productLogo);

    const juce::Colour page{ 0xffd3d3d3 };
    auto& tabs = getDialogs().getAboutPrefsTabs();
    tabs.addTab (TRANS ("Tips"), page, new zembra::TipsComponent, true);
    tabs.sendLookAndFeelChange(); // pages were made under another look than the window's

    setBounds (getX(), getY(), orDefault (vorloProcessor.getPluginEditorWidth(), defaultWidth),
               orDefault (vorloProcessor.getPluginEditorHeight(), defaultHeight));
}

VorloEditor::~VorloEditor()
{
    // Panels first, then the widgets in them, then the looks that draw both.
    stop();
    mainComponent.reset();
    deleteWidgets();
    setLookAndFeel (nullptr);
}

juce::String VorloEditor::getChangeLogUrl() const { return "https://ombrel.example/vorlo/changes"; }

juce::String VorloEditor::getProductPageUrl() const { return "https://ombrel.example/vorlo"; }

void VorloEditor::setHiResDisplay (bool shouldBeHiRes)
{
    lookAndFeel.setHiRes (shouldBeHiRes);
    repaint();
}

void VorloEditor::resized()
{
    lookAndFeel.setReferenceHeight (getHeight());
    transparentButtonLookAndFeel.setReferenceHeight (getHeight());

    auto area = getLocalBounds();
    getHeader().setBounds (area.removeFromTop (partOf (getHeight(), 0.14f)));
    getFooter().setBounds (area.removeFromBottom (partOf (getHeight(), 0.09f)));
    layOutWordmarks();

    if (mainComponent == nullptr)
        return;

    const auto sizeChanges = area != mainComponent->getBounds();
    mainComponent->setBounds (area);

    if (! sizeChanges)
        mainComponent->resized(); // parts of it follow the editor's own size
}

void VorloEditor::layOutWordmarks()
{
    const auto width = getHeader().getWidth();
    const auto height = getHeader().getHeight();
    const auto isWide = getWidth() > getHeight();
    constexpr int margin = 16;

    makerLogo.setBounds (margin, partOf (height, 0.1f), partOf (width, isWide ? 0.15f : 0.2f),
                         partOf (height, 0.8f));
    productLogo.setBounds (partOf (width, 0.8f) - (isWide ? 0 : margin), partOf (height, 0.25f),
                           partOf (width, 0.2f), partOf (height, 0.6f));
}
