#include "screen/qt/QtScrollBoard.h"

#include <QApplication>
#include <QEvent>

namespace skylob {

QtScrollBoard::QtScrollBoard(const QSize& smallest, QWidget* screen) : QScrollArea{screen} {
    auto* board = new QWidget;
    board->setMinimumSize(smallest);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidget(board);
    // The screen's own ground is to be seen.
    for (QWidget* widget : {board, viewport()}) widget->setAutoFillBackground(false);
    screen->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &QtScrollBoard::followFocus);
}

/// The widget that has the focus may go with it, and that would be told to what is no board any
/// more.
QtScrollBoard::~QtScrollBoard() {
    disconnect(qApp, nullptr, this, nullptr);
}

void QtScrollBoard::followFocus() {
    QWidget* const focus = QApplication::focusWidget();
    if (!focus || !widget()->isAncestorOf(focus)) return;
    // With the frame around it, if there is room for that: it says what the control is for.
    QWidget* const frame = focus->parentWidget();
    if (frame != widget() && frame->size().boundedTo(viewport()->size()) == frame->size())
        ensureWidgetVisible(frame, 0, 0);
    ensureWidgetVisible(focus);
}

bool QtScrollBoard::eventFilter(QObject* watched, QEvent* event) {
    const bool refused = QScrollArea::eventFilter(watched, event);
    if (event->type() != QEvent::Resize) return refused;
    if (watched == parentWidget()) {
        resize(parentWidget()->size());
        followFocus();
    } else if (watched == widget()) {
        emit boardResized();
    }
    return refused;
}

}  // namespace skylob
