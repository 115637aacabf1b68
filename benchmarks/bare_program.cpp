// The least that a program with a window can be: what ours takes to start, to wait and to keep in
// memory is compared with it. With --once it ends after its first paint, with --timer it ticks as
// often as a button does under the pointer.

#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <optional>

#include "FirstPaint.h"

int main(int argc, char** argv) {
    QApplication application{argc, argv};
    std::optional<skylob::QuitAfterFirstPaint> once;
    if (application.arguments().contains(QStringLiteral("--once"))) once.emplace(application);
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    if (application.arguments().contains(QStringLiteral("--timer"))) timer.start(3);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Bare"));
    window.setFixedSize(640, 440);
    QLabel label{QStringLiteral("A bare window"), &window};
    window.show();
    return application.exec();
}
