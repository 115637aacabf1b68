#include "app/QtLinkLabel.h"

#include <QKeyEvent>

namespace skylob {

QtLinkLabel::QtLinkLabel(const QString& text, QWidget* parent) : QLabel{text, parent} {
    setProperty("role", "link");
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
}

void QtLinkLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit Click();
}

void QtLinkLabel::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter)
        return QLabel::keyPressEvent(event);
    if (!event->isAutoRepeat()) emit Click();
}

}  // namespace skylob
