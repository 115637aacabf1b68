// The least that a program with a window can be: what ours takes to start, to wait and to keep in
// memory is compared with it. With --once it ends after its first paint.

#include <QApplication>
#include <QLabel>
#include <optional>

#include "FirstPaint.h"

int main(int argc, char** argv) {
    QApplication application{argc, argv};
    std::optional<skylob::QuitAfterFirstPaint> once;
    if (application.arguments().contains(QStringLiteral("--once"))) once.emplace(application);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Bare"));
    window.setFixedSize(640, 440);
    QLabel label{QStringLiteral("A bare window"), &window};
    window.show();
    return application.exec();
}
