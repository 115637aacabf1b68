#include "platform/qt/QtHeldInput.h"

#include <QCoreApplication>
#include <utility>

#include "base/qt/QtInput.h"

namespace skylob {

namespace {

/// Windows hear of all input first, shortcuts only through their owners. What a widget hears of the
/// pointer besides comes from widgets that are shown or hidden under it.
bool isToBeKept(const QObject* receiver, QEvent::Type type) {
    return isInput(type) ||
           (receiver->isWindowType() && (type == QEvent::Enter || type == QEvent::Leave));
}

}  // namespace

void QtHeldInput::hold() {
    qApp->installEventFilter(this);
}

void QtHeldInput::release() {
    qApp->removeEventFilter(this);
}

void QtHeldInput::deliver() {
    while (!m_kept.empty()) {
        const Kept next = std::move(m_kept.front());
        m_kept.pop_front();
        if (next.receiver) QCoreApplication::sendEvent(next.receiver, next.event.get());
    }
}

bool QtHeldInput::eventFilter(QObject* watched, QEvent* event) {
    if (!isToBeKept(watched, event->type())) return false;
    // This only asks who wants the key that comes next: nobody, now.
    if (event->type() == QEvent::ShortcutOverride) return true;
    if (replacesLast(watched, *event)) m_kept.pop_back();
    m_kept.push_back({watched, std::unique_ptr<QEvent>{event->clone()}});
    return true;
}

/// A pointer that moves on for minutes: only where it is in the end matters.
bool QtHeldInput::replacesLast(const QObject* receiver, const QEvent& event) const {
    return event.type() == QEvent::MouseMove && !m_kept.empty() &&
           m_kept.back().event->type() == QEvent::MouseMove && m_kept.back().receiver == receiver;
}

}  // namespace skylob
