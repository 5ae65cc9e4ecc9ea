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
    path.applyTransform (
        juce::AffineTransform::scale (-1.0f, 1.0f).translated (bounds.getX() + bounds.getRight(), 0.0f));
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
    return drawStroke ("M4 21 H40 C54 21 56 8 65 8 C77 8 78 40 92 52", iconPen);
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
        "M167 50 m-35 0 a35 35 0 1 0 70 0 a35 35 0 1 0 -70 0 "                       // O
        "M231 89.5 V15 L264 62 L297 15 V89.5 "                                       // M
        "M331 15 V85 H360 A17.5 17.5 0 0 0 360 48 H331 M331 48 H356 A16.5 16.5 0 0 0 356 15 "
        "H326.5 "                                                                    // B
        "M410 89.5 V15 H438 A19 19 0 0 1 438 53 H410 M436 53 L458 89.5 "             // R
        "M534 15 H490 V85 H534 M490 49 H528 "                                        // E
        "M564 10.5 V85 H606",                                                        // L
        pen);
    return mark;
}

Wordmark makeProductWordmark()
{
    constexpr float pen = 13.0f;
    Wordmark mark;
    mark.letters = drawLetters ("M6 0 L47 88 L88 0 "                                     // V
                                "M158 50 m-43.5 0 a43.5 43.5 0 1 0 87 0 a43.5 43.5 0 1 0 -87 0 " // O
                                "M243 100 V6.5 H284 A23 23 0 0 1 284 55.5 H243 M281 55 L310 100 " // R
                                "M344 0 V93.5 H396",                                      // L
                                pen);

    // The last letter: a knob's ring, open below, with its pointer turned up.
    juce::Path ring;
    ring.addCentredArc (457.0f, 50.0f, 43.5f, 43.5f, 0.0f, 3.9444442f, 8.621926f, true);
    juce::PathStrokeType (pen, juce::PathStrokeType::curved, juce::PathStrokeType::butt)
        .createStrokedPath (ring, ring, {}, 8.0f);
    mark.letters.addPath (ring);
    constexpr float pointerAngle = 7.1f;
    const auto pointer = juce::Point<float> (457.0f, 50.0f)
                             .getPointOnCircumference (43.5f, pointerAngle);
    mark.accent.addEllipse (juce::Rectangle<float> (30.0f, 30.0f).withCentre (pointer));
    return mark;
}

} // namespace vorloArt
