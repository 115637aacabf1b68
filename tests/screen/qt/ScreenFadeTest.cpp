// Run by ctest on a display without translucent windows, and by end_to_end/fade.sh on one with
// them, where it is told to expect a fade.

#include <QKeyEvent>
#include <QSignalSpy>
#include <QtTest>

#include "base/NullPorts.h"
#include "base/basSkylob.h"
#include "screen/qt/QtScreenFade.h"

namespace skylob::test {

class Screen : public QWidget {
  public:
    int keys = 0;

  protected:
    void keyPressEvent(QKeyEvent*) override { ++keys; }
};

class ScreenFadeTest : public QObject {
    Q_OBJECT

  private slots:
    void takesNoInputWhileItFadesAndLeavesOnce() {
        const bool fades = qEnvironmentVariableIsSet("SKYLOB_EXPECT_FADES");
        settings.save("FadeStatus", "True");
        Screen screen;
        QtScreenFade fade{&screen, shared, settings};
        fade.load();
        QCOMPARE(shared.FadeActive, fades);
        QCOMPARE(screen.windowOpacity(), fades ? 0.0 : 1.0);
        screen.show();
        fade.activate();
        QCOMPARE(fade.isFading(), fades);
        QTest::keyClick(&screen, Qt::Key_A);
        QCOMPARE(screen.keys, fades ? 0 : 1);
        QTRY_VERIFY(fade.takesClosing());
        QCOMPARE(screen.windowOpacity(), 1.0);
        QTest::keyClick(&screen, Qt::Key_A);
        QCOMPARE(screen.keys, fades ? 1 : 2);

        int left = 0;
        for (int time = 0; time < 2; ++time) fade.leave([&left] { ++left; });
        QCOMPARE(left, fades ? 0 : 1);
        QTRY_VERIFY(!fade.isFading());
        QVERIFY(!fade.takesClosing());
        QCOMPARE(left, 1);
        QCOMPARE(screen.windowOpacity(), fades ? 0.0 : 1.0);
        settings.save("FadeStatus", "False");
        fade.load();
        QCOMPARE(screen.windowOpacity(), 1.0);
    }

  private:
    basSkylob shared;
    MemorySettings settings;
};

}  // namespace skylob::test

QTEST_MAIN(skylob::test::ScreenFadeTest)
#include "ScreenFadeTest.moc"
