#include "screen/qt/QtRepeatGuard.h"

#include <QApplication>
#include <QWidget>
#include <utility>

#include "base/qt/QtInput.h"

namespace skylob {

namespace {

bool isTyping() {
    const QWidget* focus = QApplication::focusWidget();
    return focus && focus->testAttribute(Qt::WA_InputMethodEnabled);
}

bool isCommand(const QKeyEvent& key) {
    if (isEnterKey(key) || key.modifiers().testFlag(Qt::AltModifier)) return true;
    if (key.key() == Qt::Key_Space) return !isTyping();
    return key.key() == Qt::Key_Escape || (key.key() >= Qt::Key_F1 && key.key() <= Qt::Key_F35);
}

}  // namespace

QtRepeatGuard::QtRepeatGuard() {
    qApp->installEventFilter(this);
}

bool QtRepeatGuard::eventFilter(QObject*, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type != QEvent::KeyRelease && type != QEvent::KeyPress && type != QEvent::ShortcutOverride)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (!isCommand(key)) {
        m_released = 0;  // a key that repeats has no other in between
        return false;
    }
    const bool isSwallowed = type == QEvent::KeyRelease ? isNobodys(key) : isRepeat(key);
    if (isSwallowed) event->accept();  // an override that nobody accepts would be a shortcut
    if (!isSwallowed && type == QEvent::KeyPress && key.key() == Qt::Key_Space)
        m_spaceIsDown = true;
    return isSwallowed;
}

/// Space acts when it goes up, so that has to be swallowed with the press before it.
bool QtRepeatGuard::isNobodys(const QKeyEvent& release) {
    m_key = release.key();
    m_released = release.timestamp();
    if (m_key != Qt::Key_Space || release.isAutoRepeat()) return false;
    // The same event comes by several times, on its way to window and widgets.
    if (std::exchange(m_spaceIsDown, false)) m_spaceUp = m_released;
    return m_released != m_spaceUp;
}

/// On X11 a held key goes up and down again in one moment, and the toolkit tells that from a press
/// only where both events have already come when it handles the first.
bool QtRepeatGuard::isRepeat(const QKeyEvent& press) const {
    const bool isTheSame = m_released != 0 && press.key() == m_key;
    return press.isAutoRepeat() || (isTheSame && press.timestamp() == m_released);
}

}  // namespace skylob
