#pragma once

#include <QColor>

namespace skylob {

struct GlintCanvas;

/// Part of the way from one colour to another: 0 is the one, 1 the other.
QColor mix(const QColor& from, const QColor& to, double part);

/// A colour that lets through what is below it; alpha is 0..255, 255 covers all.
QColor withAlpha(QColor colour, int alpha);

/// The colours of one drawing: the palette as hovering, being disabled and so on change it.
struct GlintShades {
    QColor face, text, highlight, light, shadow, darkShadow, hotBorder, faceLight, flat;
    QColor mask;         ///< what is transparent in pictures
    QColor onHighlight;  ///< what a toggled-on face leans to
    QColor bevelFace;    ///< what a bevel line that is softened leans to
    int veil;            ///< what lies over all of a disabled button: the alpha of `flat`

    explicit GlintShades(const GlintCanvas& canvas);
};

}  // namespace skylob
