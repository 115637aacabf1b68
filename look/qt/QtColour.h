#pragma once

#include <QColor>

#include "look/Theme.h"

namespace skylob {

/// A colour as the toolkit has it.
inline QColor toQColor(Colour colour) {
    return QColor::fromRgb(colour.pixel());
}

}  // namespace skylob
