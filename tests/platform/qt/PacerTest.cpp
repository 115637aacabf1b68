#include <QCloseEvent>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "platform/qt/QtPacer.h"
#include "tests/support/ScreenTest.h"

using namespace skylob;

namespace {

/// Notes what comes to it.
struct Window : QPushButton {
    Window() {
        show();
        activateWindow();
        (void)QTest::qWaitForWindowActive(this);
        connect(this, &QPushButton::clicked, [this] { log << "click"; });
        connect(&timer, &QTimer::timeout, [this] { log << "tick"; });
        connect(&queued, &QTimer::timeout, [this] { log << "call"; });
        queued.setSingleShot(true);
        log.clear();
    }
    void paintEvent(QPaintEvent*) override { log << "paint"; }
    void closeEvent(QCloseEvent* event) override {
        event->ignore();
        log << "close";
    }
    /// As the window system brings it.
    void clickWithMouseAndSpaceBar() {
        const QPointF at{5, 5};
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
            QCoreApplication::postEvent(
                windowHandle(),
                new QMouseEvent(type, at, mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, {}));
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
            QCoreApplication::postEvent(windowHandle(), new QKeyEvent(type, Qt::Key_Space, {}));
    }

    QStringList log;
    QTimer timer, queued;
};

}  // namespace

class PacerTest : public QObject {
    Q_OBJECT

  private slots:
    void watchesAPauseOfTheExactLength() {
        QtPacer pacer;
        std::vector<std::int32_t> left;
        QElapsedTimer time;
        time.start();
        pacer.waitWatched(0.45F, [&](std::int32_t milliseconds) {
            if (left.empty()) QTest::qSleep(80);  // lies inside the time
            left.push_back(milliseconds);
        });
        QVERIFY(time.elapsed() >= 450 && time.elapsed() < 550);
        QVERIFY(left.size() >= 4 && left.front() >= 440 && left.back() <= 100);
        pacer.waitWatched(0, [&](std::int32_t) { QFAIL("there is no time to watch"); });
    }

    void servesWindowsInAPauseButNeitherTimersNorInput() {
        QtPacer pacer;
        Window window;
        window.timer.start(150);
        int watches = 0;
        pacer.waitWatched(0.35F, [&](std::int32_t) {
            if (++watches != 2) return;
            window.log.clear();
            window.clickWithMouseAndSpaceBar();
            QCoreApplication::postEvent(window.windowHandle(), new QCloseEvent);
            window.update();
            window.queued.start(0);
        });
        QCOMPARE(window.log, (QStringList{"close", "paint"}));
        window.log.clear();
        pacer.yieldToEvents();
        window.log.removeAll("paint");
        QCOMPARE(window.log, (QStringList{"click", "click", "call", "tick"}));
    }
};

int PacerTest_main(int argc, char** argv) {
    return skylob::test::runTest<PacerTest>(argc, argv);
}
#include "PacerTest.moc"
