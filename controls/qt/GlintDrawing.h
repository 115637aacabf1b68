#pragma once

#include <QRegion>

#include "controls/qt/GlintPainter.h"
#include "controls/qt/GlintPainterShades.h"

namespace skylob {

/// What one drawing of a button goes by, counted in device pixels from the button's first.
struct GlintDrawing {
    /// The canvas must outlive the drawing.
    explicit GlintDrawing(const GlintCanvas& of);

    const GlintCanvas& canvas;
    const GlintState& button;
    GlintShades shades;
    qreal ratio;    ///< device pixels per logical one
    int line;       ///< a line's width
    int step;       ///< a logical pixel, by which things move
    QRegion shape;  ///< the pixels that are the button's
    int width, height;
    bool pressed;
    bool on;     ///< drawn as toggled on, which a pressed button is not
    bool hover;  ///< drawn as under the pointer, which a disabled button is not

    bool isSunken() const { return pressed || on; }
    int style() const { return button.ButtonType; }
    QRect all() const { return {0, 0, width, height}; }
};

}  // namespace skylob
