#pragma once

#include <QList>
#include <QRect>

#include "screen/WindowPlace.h"

class QScreen;
class QWidget;

namespace skylob {

// Where a window comes up that has not been shown yet: on the display of the window `before` it,
// which may just have hidden itself. Without one, on the display where the pointer is. What does
// not fit on its display shows its upper left corner. A desktop may choose places itself.

DesktopArea areaOf(const QRect& rect);

/// That display.
QScreen* displayOf(const QWidget* before);

/// What a window can show on a display that has no desktop bars there and leaves room for a frame
/// like that of the window before it, or for a usual one: a new one does not know its own.
QRect roomOn(const QScreen& display, const QWidget* before);

/// In the middle of the window before it, moved as far as need be to be wholly on the display.
void centreOver(QWidget& window, const QWidget* before);

/// Over the window before it, where it hides as little as can be of what is `toBeSeen` on the
/// desktop: beside the middle, if need be beside the window.
void placeClearOf(QWidget& window, const QWidget& before, const QList<QRect>& toBeSeen);

/// In the middle of the display.
void centreOnDisplay(QWidget& window, const QWidget* before);

/// Has the desktop keep a window above another one, without making it that window's child, whose
/// style sheet it would then wear.
void keepAbove(QWidget& window, const QWidget* other);

}  // namespace skylob
