#pragma once

#include <QMouseEvent>

#include "controls/GlintInteraction.h"

class QImage;

/// How the toolkit's mouse and keys become a button's: its numbers are the classic ones.
namespace skylob {

/// Whether a button knows of this mouse button: it does of the left, right and middle one.
inline bool isGlintButton(Qt::MouseButton button) {
    return button == Qt::LeftButton || button == Qt::RightButton || button == Qt::MiddleButton;
}

/// 1 left, 2 right, 4 middle; the second is the sum of all that are held.
std::int16_t glintButton(Qt::MouseButton button);
std::int16_t glintButtons(Qt::MouseButtons buttons);

/// The sum of 1 shift, 2 control, 4 alt.
std::int16_t glintShift(Qt::KeyboardModifiers modifiers);

GlintMouse glintMouse(const QMouseEvent& event, std::int16_t button);

/// A key's classic code, such as 32 for space and 13 for Enter; 0 for keys without one.
std::int16_t glintKeyCode(int key);

/// A pointer shape by its classic number; 99 is the shape in `icon`. Unknown ones give the arrow.
QCursor glintCursor(std::int16_t shape, const QImage& icon);

}  // namespace skylob
