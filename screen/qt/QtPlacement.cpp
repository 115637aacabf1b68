#include "screen/qt/QtPlacement.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>

namespace skylob {

namespace {

/// Windows are placed by their frames, whose size a new one does not know: as wide as the others'.
void centre(QWidget& window, const QPoint& middle, const QRect& display, const QSize& frame) {
    const QPoint corner = middle - window.rect().center();
    const QSize size = window.size() + frame;
    const QPoint last = display.bottomRight() - QPoint{size.width() - 1, size.height() - 1};
    window.move(std::max(std::min(corner.x(), last.x()), display.left()),
                std::max(std::min(corner.y(), last.y()), display.top()));
}

}  // namespace

QScreen* displayOf(const QWidget* before) {
    if (before) return before->screen();
    QScreen* pointed = QGuiApplication::screenAt(QCursor::pos());
    return pointed ? pointed : QGuiApplication::primaryScreen();
}

QRect roomOn(const QScreen& display, const QWidget* before) {
    QMargins frame;
    if (before) {
        const QRect inner = before->geometry(), outer = before->frameGeometry();
        frame = {inner.left() - outer.left(), inner.top() - outer.top(),
                 outer.right() - inner.right(), outer.bottom() - inner.bottom()};
    }
    return display.availableGeometry().marginsRemoved(frame);
}

void centreOver(QWidget& window, const QWidget* before) {
    if (!before) return centreOnDisplay(window, before);
    window.setScreen(before->screen());
    const QRect display = before->screen()->availableGeometry();
    // Of a window that is larger than the display the middle is not the display's.
    const QRect seen = display & QRect{before->pos(), before->size()};
    centre(window, (seen.isEmpty() ? display : seen).center(), display,
           before->frameGeometry().size() - before->size());
}

void centreOnDisplay(QWidget& window, const QWidget* before) {
    QScreen* const screen = displayOf(before);
    window.setScreen(screen);
    const QRect display = screen->availableGeometry();
    centre(window, display.center(), display, {0, 0});
}

void keepAbove(QWidget& window, const QWidget* other) {
    if (!other || !other->windowHandle()) return;
    window.winId();
    window.windowHandle()->setTransientParent(other->windowHandle());
}

}  // namespace skylob
