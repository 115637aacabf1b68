#include "screen/qt/QtInputGate.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

#include "base/qt/QtInput.h"

namespace skylob {

QtInputGate::QtInputGate(QWidget* window) : QObject{window}, m_window{window} {
    qApp->installEventFilter(this);
}

void QtInputGate::close() {
    m_closed = true;
}

void QtInputGate::open() {
    m_closed = false;
}

void QtInputGate::dropInputAndOpen() {
    if (m_closed) QCoreApplication::processEvents();
    open();
}

bool QtInputGate::eventFilter(QObject* watched, QEvent* event) {
    if (!m_closed || !isInput(event->type()) || !belongsToWindow(watched)) return false;
    // The window itself has to hear of a release: it would otherwise take the button for held.
    return event->type() != QEvent::MouseButtonRelease || !watched->isWindowType();
}

bool QtInputGate::belongsToWindow(QObject* object) const {
    // A shortcut is neither widget nor window, but a child of one.
    for (; object; object = object->parent()) {
        if (object == m_window || object == m_window->windowHandle()) return true;
        if (object->isWindowType()) return false;
        if (object->isWidgetType() && static_cast<QWidget*>(object)->isWindow()) return false;
    }
    return false;
}

}  // namespace skylob
