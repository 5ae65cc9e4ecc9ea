// Fitting and drawing of a path button.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/FilledPathButton.h"

namespace zembra
{

FilledPathButton::FilledPathButton (const juce::String& buttonName, const juce::Path& pathToUse)
    : Button (buttonName),
      path (pathToUse)
{
}

void FilledPathButton::setPath (const juce::Path& newPath)
{
    path = newPath;
    repaint();
}

void FilledPathButton::setInsets (juce::BorderSize<int> newInsets)
{
    insets = newInsets;
    repaint();
}

juce::Path FilledPathButton::getPathFittedTo (juce::Rectangle<float> area) const
{
    auto fitted = path;

    if (! path.isEmpty() && ! area.isEmpty())
        fitted.applyTransform (path.getTransformToScaleToFit (area, true));

    return fitted;
}

void FilledPathButton::paintButton (juce::Graphics& g, bool isMouseOver, bool isDown)
{
    const auto area = insets.subtractedFrom (getLocalBounds()).toFloat();

    if (auto* const methods = dynamic_cast<ZembraLookAndFeelMethods*> (&getLookAndFeel()))
    {
        methods->drawFilledPathButton (g, *this, area, isMouseOver, isDown);
        return;
    }

    const auto id =
        getToggleState() ? juce::TextButton::textColourOnId : juce::TextButton::textColourOffId;
    g.setColour (findColour (id).withMultipliedAlpha (isEnabled() ? 1.0f : 0.4f));
    g.fillPath (getPathFittedTo (area));
}

} // namespace zembra
