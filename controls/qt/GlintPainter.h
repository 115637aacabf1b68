#pragma once

#include <QFont>
#include <QImage>

#include "controls/GlintState.h"

namespace skylob {

/// What a button's drawing is made of beside its state; valid for the one call.
struct GlintCanvas {
    const GlintState& button;
    int state = kStateUp;  ///< kStateUp or kStatePressed
    bool over = false;     ///< drawn in the colours of hovering
    bool enabled = true;
    QFont font;
    QImage picture;       ///< to be shown now, in device pixels; null for none
    QImage backdrop;      ///< kStyleGlass: what lies behind the button, in device pixels
    qreal ratio = 1;      ///< device pixels per logical one
    QPointF corner = {};  ///< the button's upper left one in device pixels, not always whole
};

/// Draws the whole button from its palette and returns it in device pixels; the first of them
/// belongs at the corner, rounded. Lines are whole device pixels and nothing but the caption is
/// antialiased, so that it is sharp at any ratio.
QImage paintGlintButton(const GlintCanvas& canvas);

}  // namespace skylob
