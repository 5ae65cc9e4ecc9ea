// Texts, thumbs and keys of the slider inside a fader.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/gui/widgets/ZembraSlider.h"

namespace zembra
{

namespace
{

/** How far a key moves a value, in steps; 0 for a key that moves none. */
int getStepsForKey (const juce::KeyPress& key)
{
    if (key == juce::KeyPress::rightKey || key == juce::KeyPress::upKey)
        return 1;

    if (key == juce::KeyPress::leftKey || key == juce::KeyPress::downKey)
        return -1;

    if (key == juce::KeyPress::pageUpKey)
        return 10;

    return key == juce::KeyPress::pageDownKey ? -10 : 0;
}

bool isAnyMovingKeyDown()
{
    using juce::KeyPress;
    const std::array keys{ KeyPress::rightKey, KeyPress::upKey,     KeyPress::leftKey,
                           KeyPress::downKey,  KeyPress::pageUpKey, KeyPress::pageDownKey };
    return std::any_of (keys.begin(), keys.end(), KeyPress::isKeyCurrentlyDown);
}

} // namespace

void ZembraSlider::setThumbTooltips (const juce::String& forMin, const juce::String& forMax)
{
    minThumbTooltip = forMin;
    maxThumbTooltip = forMax;
}

juce::String ZembraSlider::getTextFromValue (double value)
{
    if (param != nullptr)
        if (auto named = param->valueTexts[juce::roundToInt (value)]; named.isNotEmpty())
            return named;

    const auto decimals = getNumDecimalPlacesToDisplay();
    const auto number =
        decimals >= 1 ? juce::String (value, decimals) : juce::String (juce::roundToInt (value));
    return number + " " + getTextValueSuffix();
}

double ZembraSlider::getValueFromText (const juce::String& text)
{
    const auto withPoint = text.replaceCharacter (',', '.');

    if (param == nullptr)
        return Slider::getValueFromText (withPoint);

    return param->getValueForText (withPoint).value_or (getValue());
}

void ZembraSlider::mouseMove (const juce::MouseEvent& event)
{
    Slider::mouseMove (event);

    if (! (isTwoValue() || isThreeValue()) || ! isEnabled())
        return;

    const auto nearest = findNearestThumb (event.getEventRelativeTo (this).position);

    if (nearest == hoveredThumb)
        return;

    hoveredThumb = nearest;

    if (nearest != 0)
        setTooltip (nearest == 1 ? minThumbTooltip : maxThumbTooltip);

    repaint();
}

int ZembraSlider::findNearestThumb (juce::Point<float> position)
{
    // As juce::Slider decides which thumb a press takes hold of: where two thumbs coincide, the side
    // of the mouse counts.
    const auto along = isVertical() ? position.y : position.x;
    const auto towardsMin = isVertical() ? 0.1f : -0.1f;
    const auto distanceTo = [&] (double value, float offset)
    { return std::abs (getPositionOfValue (value) + offset - along); };
    const auto toMin = distanceTo (getMinValue(), towardsMin);
    const auto toMax = distanceTo (getMaxValue(), -towardsMin);

    if (isTwoValue())
        return toMax <= toMin ? 2 : 1;

    const auto toValue = distanceTo (getValue(), 0.0f);

    if (toValue >= toMin && toMax >= toMin)
        return 1;

    return toValue >= toMax ? 2 : 0;
}

bool ZembraSlider::keyPressed (const juce::KeyPress& key)
{
    if (key == juce::KeyPress::returnKey && getTextBoxPosition() != NoTextBox && isEnabled())
    {
        showTextBox();
        return true;
    }

    const auto steps = getStepsForKey (key);

    if (steps == 0 || ! isEnabled() || isTwoValue() || isThreeValue())
        return false;

    if (keyDrag == nullptr)
        keyDrag = std::make_unique<ScopedDragNotification> (*this);

    const auto step = getInterval() > 0.0 ? getInterval() : getRange().getLength() * 0.01;
    setValue (getValue() + steps * step, juce::sendNotificationSync);

    if (! isAnyMovingKeyDown())
        keyDrag.reset();

    return true;
}

bool ZembraSlider::keyStateChanged (bool isKeyDown)
{
    if (! isKeyDown && keyDrag != nullptr && ! isAnyMovingKeyDown())
        keyDrag.reset();

    return false;
}

void ZembraSlider::focusLost (FocusChangeType cause)
{
    endKeyDrag();
    Slider::focusLost (cause);
}

} // namespace zembra
