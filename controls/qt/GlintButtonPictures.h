#pragma once

#include <QImage>

#include "controls/GlintState.h"

/// What a picture reference stands for: one of the program's drawings and its size in logical
/// pixels, such as "shell 24", or the path of a picture file or resource in any format that the
/// toolkit reads. One that stands for nothing is the same as none.
namespace skylob {

class QtShapes;

/// The picture's size in logical pixels; empty for none.
QSize glintPictureSize(const PictureReference& reference, const QtShapes& shapes);

/// The picture in device pixels; null for none.
QImage glintPicture(const PictureReference& reference, const QtShapes& shapes, qreal ratio);

/// The picture on a ground of that colour, without transparency of its own.
QImage flattened(QImage picture, Colour ground);

}  // namespace skylob
