#include <QPaintEvent>
#include <QScreen>
#include <QTest>

#include "look/qt/QtShapes.h"
#include "tests/support/ScreenTest.h"
#include "title/qt/QtTitleAnimation.h"

using namespace skylob;

/// Moves only when it is told to.
class StillAnimation : public QtTitleAnimation {
  public:
    using QtTitleAnimation::QtTitleAnimation;
    QRegion painted;

  protected:
    void timerEvent(QTimerEvent*) override {}
    void paintEvent(QPaintEvent* event) override {
        painted += event->region();
        QtTitleAnimation::paintEvent(event);
    }
};

class TitleAnimationTest : public QObject {
    Q_OBJECT

  private slots:
    void runsOnlyWhileItIsSeen() {
        QtTitleAnimation animation{m_shapes, m_motion};
        for (const bool seen : {false, true, false}) {
            animation.setVisible(seen);
            QCOMPARE(animation.isRunning(), seen);
        }
    }

    void standsStillWhereMotionIsToBeReduced() {
        Motion motion = Motion::Full;
        QtTitleAnimation animation{m_shapes, motion};
        const QImage calm = animation.grab().toImage();
        animation.showMoment(3);
        animation.show();
        motion = Motion::Reduced;  // which a desktop may say late
        QTRY_VERIFY(!animation.isRunning());
        QCOMPARE(animation.grab().toImage(), calm);
        animation.resume();
        QVERIFY(!animation.isRunning());
    }

    void paintsAgainWhatHasChangedAndLittleElse() {
        StillAnimation animation{m_shapes, m_motion};
        animation.show();
        QVERIFY(QTest::qWaitForWindowExposed(&animation));
        for (const double seconds : {0.5, 0.6, 1.7, 1.75, 2.8, 3.0, 3.05, 3.7, 3.8, 4.5, 6.0}) {
            animation.painted = {};
            animation.showMoment(seconds);
            QCoreApplication::processEvents();
            int pixels = 0;
            for (const QRect& rect : animation.painted) pixels += rect.width() * rect.height();
            QCOMPARE_GT(pixels, 0);
            QCOMPARE_LT(pixels, 640 * 280 / 10);
            const QImage shown = animation.screen()->grabWindow(animation.winId()).toImage();
            const QImage whole = animation.grab().toImage();
            QCOMPARE(shown.convertToFormat(QImage::Format_RGB32),
                     whole.convertToFormat(QImage::Format_RGB32));
        }
    }

  private:
    const QtShapes m_shapes{programDrawings()};
    Motion m_motion = Motion::Full;
};

int TitleAnimationTest_main(int argc, char** argv) {
    return skylob::test::runTest<TitleAnimationTest>(argc, argv);
}
#include "TitleAnimationTest.moc"
