#pragma once

#include <QImage>

#include "controls/TransferPicture.h"

/// TransferPicture for the toolkit's images. A picture's own transparency says how much of a pixel
/// it covers: the face is left alone, merged, or in between, whatever the effects make of the
/// colour.
namespace skylob {

/// Merges the picture into a part of `face` that begins at `place`; what hangs over is cut off.
void mergePicture(QImage& face, QPoint place, const QImage& picture, const TransferEffects& effects,
                  std::optional<Colour> transparent);

/// The picture on a ground of that colour, without transparency of its own.
QImage onGround(const QImage& picture, const QColor& ground);

}  // namespace skylob
