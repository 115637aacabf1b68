#include "screen/qt/QtPlacement.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>

#include "screen/ClearPlace.h"

namespace skylob {

namespace {

constexpr QMargins kUsualFrame{4, 32, 4, 4};

/// Windows are placed by their frames, whose size a new one does not know: as wide as the others'.
void centre(QWidget& window, const QPoint& middle, const QRect& display, const QSize& frame) {
    const QPoint corner = middle - window.rect().center();
    const QSize size = window.size() + frame;
    const QPoint last = display.bottomRight() - QPoint{size.width() - 1, size.height() - 1};
    window.move(std::max(std::min(corner.x(), last.x()), display.left()),
                std::max(std::min(corner.y(), last.y()), display.top()));
}

/// The part of an area that is on the display; of one that is elsewhere, the display.
QRect seenPart(const QRect& area, const QRect& display) {
    const QRect seen = display & area;
    return seen.isEmpty() ? display : seen;
}

QSize frameOf(const QWidget& window) {
    return window.frameGeometry().size() - window.size();
}

}  // namespace

DesktopArea areaOf(const QRect& rect) {
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

QScreen* displayOf(const QWidget* before) {
    if (before) return before->screen();
    QScreen* pointed = QGuiApplication::screenAt(QCursor::pos());
    return pointed ? pointed : QGuiApplication::primaryScreen();
}

QRect roomOn(const QScreen& display, const QWidget* before) {
    QMargins frame = kUsualFrame;
    if (before) {
        const QRect inner = before->geometry(), outer = before->frameGeometry();
        frame = {inner.left() - outer.left(), inner.top() - outer.top(),
                 outer.right() - inner.right(), outer.bottom() - inner.bottom()};
    }
    return display.availableGeometry().marginsRemoved(frame);
}

void placeClearOf(QWidget& window, const QWidget& before, const QList<QRect>& toBeSeen) {
    window.setScreen(before.screen());
    const QRect display = before.screen()->availableGeometry();
    std::vector<DesktopArea> areas;
    for (const QRect& part : toBeSeen) areas.push_back(areaOf(part));
    const QSize size = window.size() + frameOf(before);
    const DesktopArea place = clearPlace(size.width(), size.height(), areaOf(display),
                                         areaOf(seenPart(before.frameGeometry(), display)), areas);
    window.move(place.x, place.y);
}

void centreOver(QWidget& window, const QWidget* before) {
    if (!before) return centreOnDisplay(window, before);
    window.setScreen(before->screen());
    const QRect display = before->screen()->availableGeometry();
    // Of a window that is larger than the display the middle is not the display's.
    centre(window, seenPart({before->pos(), before->size()}, display).center(), display,
           frameOf(*before));
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
