// The strokes that the product's icons and wordmarks are drawn with.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "product/resources/art/VorloArt.h"

#include <juce_gui_basics/juce_gui_basics.h>

namespace vorloArt
{

namespace
{

/** The outline of a pen line along a path in SVG's notation. */
juce::Path drawStroke (const char* svgPath, float penWidth,
                       juce::PathStrokeType::JointStyle joints = juce::PathStrokeType::curved,
                       juce::PathStrokeType::EndCapStyle ends = juce::PathStrokeType::rounded)
{
    const juce::PathStrokeType pen (penWidth, joints, ends);
    const auto line = juce::Drawable::parseSVGPath (svgPath);
    juce::Path outline;
    constexpr float detail = 8.0f;
    pen.createStrokedPath (outline, line, {}, detail);
    return outline;
}

juce::Path drawLetters (const char* svgPath, float penWidth)
{
    return drawStroke (svgPath, penWidth, juce::PathStrokeType::mitered,
                       juce::PathStrokeType::butt);
}

juce::Path mirror (juce::Path path)
{
    const auto bounds = path.getBounds();
    path.applyTransform (juce::AffineTransform::scale (-1.0f, 1.0f)
                             .translated (bounds.getX() + bounds.getRight(), 0.0f));
    return path;
}

constexpr float iconPen = 9.0f;

} // namespace

juce::Path makeLinkIcon()
{
    return drawStroke ("M41 6 H25 A19 19 0 0 0 25 44 H41 M59 6 H75 A19 19 0 0 1 75 44 H59 "
                       "M32 25 H68",
                       9.0f);
}

juce::Path makeLowPassIcon()
{
    return drawStroke ("M4.5 14 H52 C63 14 64 5 71.5 5 C82 5 82 26 91 46", iconPen);
}

juce::Path makeHighPassIcon() { return mirror (makeLowPassIcon()); }

juce::Path makeWaveIcon (int waveform)
{
    switch (waveform)
    {
    case 0:
        return drawStroke ("M5 30 C21.4 -7 33.6 -7 50 30 C66.4 67 78.6 67 95 30", iconPen);
    case 1:
        return drawStroke ("M5 30 V2.25 H50 V57.75 H95 V30", iconPen);
    case 2:
        return drawStroke ("M5 30 L27.5 2.25 L72.5 57.75 L95 30", iconPen);
    default:
        return drawStroke ("M5 40 H23 V2.25 H41 V57.75 H59 V18 H77 V44 H95", iconPen);
    }
}

Wordmark makeMakerWordmark()
{
    constexpr float pen = 9.0f;
    Wordmark mark;
    // The parasol: canopy, scallops, stick.
    mark.accent = juce::Drawable::parseSVGPath (
        "M0 54 A50 50 0 0 1 100 54 Q83.3 42 66.7 54 Q50 42 33.3 54 Q16.7 42 0 54 Z");
    mark.accent.addPath (drawStroke ("M50 50 V88 A9 9 0 0 1 32 88", 7.0f));

    mark.letters = drawLetters (
        "M167 50 m-35 0 a35 35 0 1 0 70 0 a35 35 0 1 0 -70 0 " // O
        "M231 89.5 V15 L264 62 L297 15 V89.5 "                 // M
        "M331 15 V85 H360 A17.5 17.5 0 0 0 360 48 H331 M331 48 H356 A16.5 16.5 0 0 0 356 15 "
        "H326.5 "                                                        // B
        "M410 89.5 V15 H438 A19 19 0 0 1 438 53 H410 M436 53 L458 89.5 " // R
        "M534 15 H490 V85 H534 M490 49 H528 "                            // E
        "M564 10.5 V85 H606",                                            // L
        pen);
    mark.frame = mark.letters.getBounds().getUnion (mark.accent.getBounds());
    return mark;
}

Wordmark makeProductWordmark()
{
    constexpr float pen = 11.0f;
    Wordmark mark;
    mark.letters =
        drawLetters ("M5 0 L45 89 L85 0 "                                              // V
                     "M171 50 m-45 0 a45 45 0 1 0 90 0 a45 45 0 1 0 -90 0 "            // O
                     "M262 100 V5 H298 A25.5 25.5 0 0 1 298 56 H262 M296 56 L324 100 " // R
                     "M366 0 V95 H416",                                                // L
                     pen);

    // The last letter: a knob's ring, open below, with its pointer turned up.
    constexpr float radius = 45.0f;
    const juce::Point<float> centre{ 500.0f, 50.0f };
    juce::Path ring;
    ring.addCentredArc (centre.x, centre.y, radius, radius, 0.0f, 3.9444442f, 8.621926f, true);
    juce::PathStrokeType (pen, juce::PathStrokeType::curved, juce::PathStrokeType::butt)
        .createStrokedPath (ring, ring, {}, 8.0f);
    mark.letters.addPath (ring);
    constexpr float pointerAngle = 7.1f;
    const auto pointer = centre.getPointOnCircumference (radius, pointerAngle);
    mark.accent.addEllipse (juce::Rectangle<float> (27.0f, 27.0f).withCentre (pointer));
    mark.frame = juce::Rectangle<float> (0.0f, 0.0f, 550.0f, 100.0f).expanded (0.0f, 20.0f);
    return mark;
}

} // namespace vorloArt
