#pragma once

#include "controls/qt/GlintDrawing.h"

class QPainter;

namespace skylob {

/// Draws a button's body by its style: the fill, the bevel and the outline. What stands on it is
/// not the face's. The painter counts in the drawing's pixels and is clipped to its shape.
void drawGlintFace(QPainter& painter, const GlintDrawing& drawing);

}  // namespace skylob
