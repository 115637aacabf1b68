#include <QTimer>
#include <QWheelEvent>

#include "tests/support/BattleScreen.h"
#include "tests/support/ScreenTest.h"

using namespace skylob;
using test::Screen;

namespace {

void turnWheel(QWidget* bar, int eighths, Qt::KeyboardModifiers modifiers = {}) {
    QWheelEvent event{
        {5, 5}, bar->mapToGlobal(QPointF{5, 5}), {}, {0, eighths}, {}, modifiers, Qt::NoScrollPhase,
        false};
    QCoreApplication::sendEvent(bar, &event);
}

void drag(QWidget* field, std::initializer_list<QPoint> way) {
    QTest::mousePress(field, Qt::LeftButton, {}, *way.begin());
    for (const QPoint& at : way) {
        QMouseEvent move{QEvent::MouseMove, at, field->mapToGlobal(QPointF{at}), Qt::NoButton,
                         Qt::LeftButton,    {}};
        QCoreApplication::sendEvent(field, &move);
    }
}

constexpr QPoint kPiece1{160, 457};  // column 163, on ground of height 105

}  // namespace

class HandsTest : public QObject {
    Q_OBJECT

  private slots:
    void typesNumbersIntoBars() {
        Screen screen;
        QScrollBar* const speed = screen.bar("scrollSpeed(1)");
        QScrollBar* const angle = screen.bar("scrollAngle(1)");
        QTest::keyClicks(speed, "44");
        QCOMPARE(speed->value(), 300);
        QCOMPARE(speed->accessibleDescription(), QStringLiteral("44"));
        QVERIFY(screen.shows("44_"));
        QTest::keyClick(speed, Qt::Key_2);
        QCOMPARE(speed->value(), 442);
        QVERIFY(screen.shows("Speed: 442"));
        QTest::keyClicks(speed, "99");
        auto* const patience = speed->findChild<QTimer*>("timerDigits");
        QCOMPARE(patience->interval(), 1000);
        QVERIFY(patience->isActive());
        QTest::keyClick(speed, Qt::Key_Tab);
        QVERIFY(angle->hasFocus());
        QVERIFY(!patience->isActive());
        QCOMPARE(speed->value(), 442);
        QTest::keyClicks(angle, "82");
        QCOMPARE(angle->value(), 82);
        QTest::keyClick(angle, Qt::Key_9);
        QTest::keyClick(angle, Qt::Key_Left);  // from where the bar stands
        QTest::keyClicks(angle, "5");
        QCOMPARE(angle->value(), 81);
    }

    void movesBarsByTheWheel() {
        Screen screen;
        QScrollBar* const speed = screen.bar("scrollSpeed(1)");
        turnWheel(speed, 120);
        QCOMPARE(speed->value(), 301);
        turnWheel(speed, -240);
        QCOMPARE(speed->value(), 299);
        turnWheel(speed, 120, Qt::ControlModifier);
        QCOMPARE(speed->value(), 309);
        for (int part = 0; part < 3; ++part) turnWheel(speed, 40);
        QCOMPARE(speed->value(), 310);
        turnWheel(screen.bar("scrollSpeed(2)"), 120);
        QCOMPARE(screen.bar("scrollSpeed(2)")->value(), 300);
    }

    void aimsByDraggingFromThePiece() {
        Screen screen;
        QWidget* const field = screen.field();
        const auto* const line = field->findChild<QWidget*>("dragAim");
        const auto aim = [&screen](int side) {
            const Aim& at = screen.form->battle().state().aim[side];
            return QPoint{at.speed, at.angle};
        };
        const QPoint there = kPiece1 + QPoint{300, -200};
        QEvent box{QEvent::WindowBlocked};
        QMouseEvent released{QEvent::MouseMove, QPointF{}, QPointF{}, Qt::NoButton, {}, {}};
        const std::function<void()> drops[] = {
            [&] { QCoreApplication::sendEvent(field, &released); },  // its release was lost
            [&] { QTest::keyClick(screen.form.get(), Qt::Key_Escape); },
            [&] { QCoreApplication::sendEvent(screen.form.get(), &box); }};
        for (const auto& drop : drops) {
            drag(field, {kPiece1, there});
            QVERIFY(line->isVisible());
            drop();
            QVERIFY(!line->isVisible());
            QTest::mouseRelease(field, Qt::LeftButton, {}, kPiece1);
            QCOMPARE(aim(1), QPoint(300, 75));  // only at the release
            QVERIFY(screen.form->isVisible());
        }

        drag(field, {kPiece1, there});
        QTest::mouseRelease(field, Qt::LeftButton, {}, there);
        // 305 columns and 385 units up: 491, 38.4 true degrees from upright.
        QCOMPARE(aim(1), QPoint(491, 52));
        QVERIFY(!line->isVisible());

        drag(field, {kPiece1, kPiece1 + QPoint{9, 0}});
        QTest::mouseRelease(field, Qt::LeftButton, {}, kPiece1 + QPoint{9, 0});
        const QPoint two{849, 497};  // not its turn: no drag, and too far for a click
        drag(field, {two, two + QPoint{5, 5}});
        QVERIFY(!line->isVisible());
        QTest::mouseRelease(field, Qt::LeftButton, {}, two + QPoint{5, 5});
        QCOMPARE(screen.shots(), 0u);
        QTest::mousePress(field, Qt::LeftButton, {}, kPiece1);
        QTest::mouseRelease(field, Qt::LeftButton, {}, kPiece1 + QPoint{4, 4});
        QCOMPARE(screen.shots(), 1u);
        drag(field, {two, two - QPoint{100, 100}});
        QTest::keyClick(screen.form.get(), Qt::Key_S, Qt::AltModifier);
        QTest::mouseRelease(field, Qt::LeftButton, {}, two);
        QCOMPARE(aim(1), QPoint(100, 10));  // by the short drag, not by the other side
    }

    void setsTheVolumeAndRemembersIt() {
        Screen screen;
        QList<int> heard;
        connect(screen.form.get(), &frmPlayGame::volumeChosen, this,
                [&heard](int percent) { heard << percent; });
        QScrollBar* const volume = screen.bar("scrollVolume");
        QCOMPARE(volume->value(), 100);
        const DateTime before = screen.form->battle().state().TurnStartTime;
        screen.clock.time += std::chrono::hours{1};
        volume->setValue(40);
        QCOMPARE(heard, QList<int>{40});
        QVERIFY(screen.form->battle().state().TurnStartTime == before);
        QTest::keyClick(screen.form.get(), Qt::Key_Escape);
        QCOMPARE(screen.windows.recall("Volume", ""), std::string{"40"});
    }

    void showsTheRulesOnlyWhileThePlayerMayAct() {
        Screen screen;
        int shown = 0;
        connect(screen.form.get(), &frmPlayGame::rulesWanted, this, [&] {
            ++shown;
            QVERIFY(!screen.form->findChild<QTimer*>("timerMeteors")->isActive());
        });
        QTest::keyClick(screen.form.get(), Qt::Key_F1);
        QCOMPARE(shown, 1);
        QVERIFY(screen.form->findChild<QTimer*>("timerMeteors")->isActive());
    }

    void givesANewPlayerThreeHintsOnce() {
        const auto hints = [](Screen& screen) {
            QStringList names;
            for (const char* name : {"hintSpeed", "hintAngle", "hintShoot"}) {
                const auto* hint = screen.form->findChild<QLabel*>(name);
                if (!hint || !hint->isVisible()) continue;
                names << hint->objectName();
                if (!hint->parentWidget()->rect().contains(hint->geometry())) names << "is cut";
            }
            return names.join(' ');
        };
        for (const int size : {1, 2, 3}) {
            Screen screen{size, "Ann", "Bob", Screen::NewUser};
            QCOMPARE(hints(screen), QStringLiteral("hintSpeed hintAngle hintShoot"));
            screen.form->resize(screen.form->size() + QSize{300, 150});
            const QRect row = screen.form->findChild<QLabel*>("labelReport")->geometry();
            const QRect hint = screen.form->findChild<QLabel*>("hintShoot")->geometry();
            QVERIFY(row.contains(hint.center()));
            screen.bar("scrollSpeed(1)")->setValue(310);
            QCOMPARE(hints(screen), QStringLiteral("hintAngle hintShoot"));
            QTest::mouseClick(screen.form->findChild<QLabel*>("hintAngle"), Qt::LeftButton);
            QCOMPARE(hints(screen), QString{});
            QCOMPARE(screen.windows.recall("HintsSeen", ""), std::string{"1"});
            QVERIFY(screen.bar("scrollSpeed(1)")->hasFocus());
        }
        Screen seen;
        QCOMPARE(hints(seen), QString{});
        Screen fired{2, "Ann", "Bob", Screen::NewUser};
        QTest::mouseClick(fired.shoot(), Qt::LeftButton);
        QCOMPARE(hints(fired), QString{});
    }
};

int HandsTest_main(int argc, char** argv) {
    return skylob::test::runTest<HandsTest>(argc, argv);
}
#include "HandsTest.moc"
