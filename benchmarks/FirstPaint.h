#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace skylob {

/// Ends the program when the first of its windows has been painted for the first time.
class QuitAfterFirstPaint : public QObject {
  public:
    explicit QuitAfterFirstPaint(QApplication& application) {
        application.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(watched);
        // Queued, so that the picture reaches the display before.
        if (event->type() == QEvent::Paint && widget && widget->isWindow())
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return false;
    }
};

}  // namespace skylob
