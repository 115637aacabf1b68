#include "screen/qt/QtModalGuard.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QWindow>
#include <QWindowStateChangeEvent>
#include <utility>

#include "base/qt/QtInput.h"

namespace skylob {

namespace {

/// A shortcut is no widget, but a child of one.
QWidget* widgetOf(QObject* object) {
    while (object && !object->isWidgetType()) object = object->parent();
    return static_cast<QWidget*>(object);
}

/// Windows that are not widgets are left to the toolkit, which blocks them itself. A menu is never
/// behind: those of other windows were closed when the modal window came up.
bool isBehindModalWindow(QObject* object) {
    const QWindow* modal = QGuiApplication::modalWindow();
    const QWidget* widget = modal ? widgetOf(object) : nullptr;
    if (!widget) return false;
    const QWidget* window = widget->window();
    return window->windowHandle() != modal && window->windowType() != Qt::Popup;
}

/// Over a full screen, some displays leave the keyboard where it is.
bool isKeyboardBehind() {
    const QWindow* focused = QGuiApplication::focusWindow();
    return focused && focused != QGuiApplication::modalWindow() && focused->type() != Qt::Popup;
}

/// Not every desktop keeps a modal window above the others, or gives it the keyboard.
void raiseModalWindow() {
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal) return;
    modal->raise();
    modal->activateWindow();
}

/// Whoever puts a modal window aside cannot do anything with those behind it, nor get at it from
/// there by keyboard: all of the program's windows go aside and come back together.
void followAside(const QWidget& changed) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->isMinimized() != changed.isMinimized())
            window->setWindowState(window->windowState() ^ Qt::WindowMinimized);
    }
    if (!changed.isMinimized()) raiseModalWindow();
}

bool hasGoneAsideOrComeBack(const QWidget& window, const QEvent& change) {
    const auto before = static_cast<const QWindowStateChangeEvent&>(change).oldState();
    return (before ^ window.windowState()) & Qt::WindowMinimized;
}

}  // namespace

QtModalGuard::QtModalGuard() {
    qApp->installEventFilter(this);
}

bool QtModalGuard::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::WindowBlocked) letGoIn(watched);
    if (type == QEvent::WindowActivate && watched->isWidgetType() &&
        static_cast<QWidget*>(watched)->isWindow() && isBehindModalWindow(watched))
        raiseModalWindow();
    if (type == QEvent::Expose && watched == QGuiApplication::modalWindow() && isKeyboardBehind())
        raiseModalWindow();
    if (type == QEvent::WindowStateChange && watched->isWidgetType() &&
        QGuiApplication::modalWindow()) {
        const auto& window = static_cast<const QWidget&>(*watched);
        if (window.isWindow() && hasGoneAsideOrComeBack(window, *event)) followAside(window);
    }
    if (m_lettingGo || !isInput(type)) return false;
    if (isBehindModalWindow(watched)) return true;
    if (watched->isWidgetType()) noteButtons(static_cast<QWidget*>(watched), *event);
    return false;
}

void QtModalGuard::noteButtons(QWidget* widget, const QEvent& event) {
    // What one widget does not want goes on to its parent: the last one to see it has it.
    if (event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick) {
        m_held = widget;
        m_heldBy = static_cast<const QMouseEvent&>(event).button();
    }
    if (event.type() == QEvent::MouseButtonRelease) m_held = nullptr;
}

/// The window will not hear of the button's going up. Told now, and outside the widget, it is no
/// click.
void QtModalGuard::letGoIn(const QObject* window) {
    if (!m_held || m_held->window() != window) return;
    const QPointer<QWidget> held = std::exchange(m_held, nullptr);
    const QPointF outside{-1, -1};
    QMouseEvent release{QEvent::MouseButtonRelease,
                        outside,
                        held->mapToGlobal(outside),
                        m_heldBy,
                        Qt::NoButton,
                        {}};
    const QScopedValueRollback letting{m_lettingGo, true};
    QCoreApplication::sendEvent(held, &release);
}

}  // namespace skylob
