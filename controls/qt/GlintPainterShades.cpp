#include "controls/qt/GlintPainterShades.h"

#include "controls/qt/GlintPainter.h"
#include "look/Contrast.h"
#include "look/qt/QtColour.h"

namespace skylob {

QColor mix(const QColor& from, const QColor& to, double part) {
    const auto channel = [part](int a, int b) { return qRound(a + (b - a) * part); };
    return QColor{channel(from.red(), to.red()), channel(from.green(), to.green()),
                  channel(from.blue(), to.blue())};
}

QColor withAlpha(QColor colour, int alpha) {
    colour.setAlpha(alpha);
    return colour;
}

GlintShades::GlintShades(const GlintCanvas& canvas) {
    const GlintPalette& palette = canvas.button.palette;
    const bool hover = canvas.over && canvas.enabled;
    face = toQColor(hover ? palette.FaceOverColour : palette.FaceColour);
    text = toQColor(hover ? palette.TextOverColour : palette.TextColour);
    highlight = toQColor(palette.HighlightColour);
    light = toQColor(palette.LightColour);
    shadow = toQColor(palette.ShadowColour);
    darkShadow = toQColor(palette.DarkShadowColour);
    hotBorder = toQColor(palette.HotBorderColour);
    faceLight = toQColor(palette.FaceLightColour);
    // What is dark on a light face has to be read on its dull one, too.
    const bool isLight = luminance(palette.FaceColour) > luminance(palette.TextColour);
    flat = mix(toQColor(palette.FaceColour), hotBorder, isLight ? 0.4 : 0.55);
    veil = isLight ? 16 : 120;
    mask = toQColor(palette.MaskRGB);
    onHighlight = highlight;
    bevelFace = canvas.enabled ? face : flat;
    if (hover) highlight = mix(highlight, Qt::white, 0.25);
    if (!canvas.enabled) {
        highlight = mix(light, flat, 0.4);
        light = mix(light, flat, 0.6);
        shadow = mix(shadow, flat, 0.4);
    }
}

}  // namespace skylob
