#include "screen/qt/QtEnterGuard.h"

#include <QApplication>

#include "base/qt/QtInput.h"

namespace skylob {

QtEnterGuard::QtEnterGuard() {
    qApp->installEventFilter(this);
}

bool QtEnterGuard::eventFilter(QObject*, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::KeyRelease && type != QEvent::KeyPress && type != QEvent::ShortcutOverride)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (!isEnterKey(key)) {
        m_released = 0;  // a key that repeats has no other in between
        return false;
    }
    if (type == QEvent::KeyRelease) m_released = key.timestamp();
    if (type == QEvent::KeyRelease || !isRepeat(key)) return false;
    event->accept();  // an override that nobody accepts would go on as a shortcut
    return true;
}

/// On X11 a held key goes up and down again in one moment, and the toolkit tells that from a press
/// only where both events have already come when it handles the first.
bool QtEnterGuard::isRepeat(const QKeyEvent& press) const {
    return press.isAutoRepeat() || (m_released != 0 && press.timestamp() == m_released);
}

}  // namespace skylob
