#include "controls/qt/QtPointerPlace.h"

#include <xcb/xcb.h>

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QWidget>

namespace skylob {

namespace {

// What the input extension reports instead of the core protocol's events, with a type of its own.
constexpr int kExtensionsMotion = 6, kExtensionsEnter = 7, kExtensionsLeave = 8;

bool isEntering(int type, int extensionsType) {
    return type == XCB_ENTER_NOTIFY || type == XCB_MOTION_NOTIFY ||
           extensionsType == kExtensionsEnter || extensionsType == kExtensionsMotion;
}

}  // namespace

void QtPointerPlace::watch(bool on) {
    if (on == m_isWatching || QGuiApplication::platformName() != QLatin1String{"xcb"}) return;
    m_isWatching = on;
    m_isInside = on;
    m_windowStands = m_widgetStands = false;
    if (!qApp) return;
    if (on) {
        qApp->installNativeEventFilter(this);
        qApp->installEventFilter(this);
    } else {
        qApp->removeNativeEventFilter(this);
        qApp->removeEventFilter(this);
    }
}

QWidget* QtPointerPlace::widget() {
    if (!m_windowStands) {
        m_place = QCursor::pos();
        m_window = QApplication::topLevelAt(m_place);
        m_windowStands = m_isInside;
        m_widgetStands = false;
    }
    if (!m_widgetStands) m_widget = childThere();
    m_widgetStands = m_windowStands;
    return m_widget;
}

QWidget* QtPointerPlace::childThere() const {
    if (!m_window) return nullptr;
    QWidget* const child = m_window->childAt(m_window->mapFromGlobal(m_place));
    return child ? child : m_window.data();
}

bool QtPointerPlace::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto& event = *static_cast<const xcb_ge_generic_event_t*>(message);
    const int type = event.response_type & 0x7F;
    const int extensionsType = type == XCB_GE_GENERIC ? event.event_type : 0;
    m_windowStands = false;
    if (isEntering(type, extensionsType)) m_isInside = true;
    if (type == XCB_LEAVE_NOTIFY || extensionsType == kExtensionsLeave) m_isInside = false;
    return false;
}

bool QtPointerPlace::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::Timer) m_widgetStands = false;
    return false;
}

}  // namespace skylob
