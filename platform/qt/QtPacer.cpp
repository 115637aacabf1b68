#include "platform/qt/QtPacer.h"

#include <QCoreApplication>
#include <QScopeGuard>
#include <QThread>
#include <algorithm>
#include <chrono>
#include <thread>

namespace skylob {

void QtPacer::startPacing() {
    m_countedWait.start();
}

void QtPacer::countedWait(std::int32_t counts) {
    m_countedWait.run(counts);
}

void QtPacer::Wait(float seconds) {
    QThread::msleep(static_cast<unsigned long>(waitMilliseconds(seconds)));
}

void QtPacer::waitWatched(float seconds, const Watch& watch) {
    using std::chrono::milliseconds, std::chrono::steady_clock;
    constexpr milliseconds kSlice{100};
    // What is done between the slices lies inside the time and does not lengthen it.
    const auto end = steady_clock::now() + milliseconds{waitMilliseconds(seconds)};
    m_heldInput.hold();
    const auto release = qScopeGuard([this] { m_heldInput.release(); });
    for (auto next = steady_clock::now();;) {
        QCoreApplication::processEvents(QEventLoop::X11ExcludeTimers);
        const auto now = steady_clock::now();
        if (now >= end) return;
        watch(static_cast<std::int32_t>(std::chrono::ceil<milliseconds>(end - now).count()));
        next = std::min(std::max(next, now - kSlice) + kSlice, end);
        std::this_thread::sleep_until(next);
    }
}

void QtPacer::yieldToEvents() {
    m_heldInput.deliver();
    QCoreApplication::processEvents();
}

}  // namespace skylob
