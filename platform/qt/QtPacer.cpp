#include "platform/qt/QtPacer.h"

#include <QCoreApplication>
#include <QThread>

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

void QtPacer::yieldToEvents() {
    QCoreApplication::processEvents();
}

}  // namespace skylob
