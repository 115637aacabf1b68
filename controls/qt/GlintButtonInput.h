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

/// kMouseLeft and so on, 0 for others; the second is the sum of all that are held.
std::int16_t glintButton(Qt::MouseButton button);
std::int16_t glintButtons(Qt::MouseButtons buttons);

/// The sum of kHeldShift and so on.
std::int16_t glintShift(Qt::KeyboardModifiers modifiers);

GlintMouse glintMouse(const QMouseEvent& event, std::int16_t button);

/// A key's classic code, such as 32 for space and 13 for Enter; 0 for keys without one.
std::int16_t glintKeyCode(int key);

/// Pointer shapes have classic numbers. The first is whatever the form shows, the other the
/// button's own picture.
constexpr std::int16_t kFormsShape = 0, kOwnShape = 99;

/// A pointer shape by its number, kOwnShape being that of `icon`. Unknown ones give the arrow.
QCursor glintCursor(std::int16_t shape, const QImage& icon);

}  // namespace skylob
