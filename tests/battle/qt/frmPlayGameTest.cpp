#include <QAbstractButton>
#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QHelpEvent>
#include <QLabel>
#include <QScrollBar>
#include <QShortcut>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QWindow>

#include "battle/qt/frmPlayGameLayout.h"
#include "battle/qt/picGameField.h"
#include "controls/qt/GlintButton.h"
#include "screen/qt/QtMessageBoxes.h"
#include "tests/support/BattleScreen.h"
#include "tests/support/ScreenTest.h"

using namespace skylob;
using test::Screen;

class frmPlayGameTest : public QObject {
    Q_OBJECT

  private slots:
    void playsATurnByKeyboardAlone() {
        Screen screen;
        QScrollBar* const speed = screen.bar("scrollSpeed(1)");
        QCOMPARE(speed->accessibleName(), QStringLiteral("Speed"));
        QVERIFY(speed->hasFocus());
        for (const auto key : {Qt::Key_Right, Qt::Key_PageUp}) QTest::keyClick(speed, key);
        QVERIFY(screen.shows("Speed: 311"));
        for (const auto key : {Qt::Key_Down, Qt::Key_Left}) QTest::keyClick(speed, key);
        QVERIFY(screen.shows("Speed: 309"));
        for (const auto key : {Qt::Key_End, Qt::Key_Tab}) QTest::keyClick(speed, key);
        QScrollBar* const angle = screen.bar("scrollAngle(1)");
        QVERIFY(angle->hasFocus());
        for (const auto key : {Qt::Key_PageUp, Qt::Key_Tab}) QTest::keyClick(angle, key);
        QVERIFY(screen.shows("Angle:   80"));
        QVERIFY(screen.shoot()->hasFocus());
        QTest::keyClick(screen.shoot(), Qt::Key_Space);
        QCOMPARE(screen.form->battle().shots().at(0).speed, 999);
        QCOMPARE(screen.form->battle().shots().at(0).angle, 80);
        QVERIFY(screen.shoot()->hasFocus());  // it was there, so it stays
        QTest::keyClick(screen.form.get(), Qt::Key_A, Qt::AltModifier);
        QVERIFY(screen.bar("scrollAngle(2)")->hasFocus());
        QTest::keyClick(screen.form.get(), Qt::Key_S, Qt::AltModifier);
        QCOMPARE(screen.shots(), 2u);
        QVERIFY(speed->hasFocus());
    }

    void firesFromAPiece() {
        Screen screen;
        // The pieces stand in columns 163 and 863, on ground of height 105 and 28.
        const QPoint one{160, 457}, two{849, 497}, sky{400, 100};
        for (const QPoint& place : {one, sky, two})
            QTest::mouseClick(screen.field(), Qt::LeftButton, {}, place);
        QCOMPARE(screen.shots(), 2u);
        QHelpEvent rest{QEvent::ToolTip, two, screen.field()->mapToGlobal(two)};
        QApplication::sendEvent(screen.field(), &rest);
        QCOMPARE(QToolTip::text(), " Click here to shoot ");
    }

    void dropsInputMadeWhileAShellFlies() {
        Screen screen;
        GlintButton* const shoot = screen.shoot();
        QScrollBar* const enemySpeed = screen.bar("scrollSpeed(2)");
        int flights = 0;
        screen.pacer.duringFlight = [&] {
            if (++flights != 3) return;
            // Queued as the window system queues it: seen only when events are served again.
            for (QWidget* target : std::initializer_list<QWidget*>{shoot, enemySpeed}) {
                const QPointF at{5, 5};
                for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
                    QCoreApplication::postEvent(
                        target, new QMouseEvent(type, at, target->mapToGlobal(at), Qt::LeftButton,
                                                Qt::LeftButton, {}));
            }
            QTest::keyClick(screen.form.get(), Qt::Key_Escape);
            QVERIFY(!screen.form->close());
        };
        QTest::mouseClick(shoot, Qt::LeftButton);
        QCoreApplication::processEvents();
        QCOMPARE(screen.shots(), 1u);
        QVERIFY(flights >= 3);
        QVERIFY(screen.form->isVisible());
        QCOMPARE(enemySpeed->value(), 300);
        QVERIFY(screen.shows("Speed: 300"));
        QTest::mouseClick(shoot, Qt::LeftButton);
        QCOMPARE(screen.shots(), 2u);
    }

    void showsItsLabelsAsTheyMatter() {
        Screen screen;
        const auto* const men = screen.form->findChild<QLabel*>("labelMenLeft(1)");
        QCOMPARE(men->font().weight(), QFont::DemiBold);
        QCOMPARE(men->font().pixelSize(), 13);
        const auto* const gameSpeed = screen.form->findChild<QLabel*>("labelGameSpeed");
        int flights = 0;
        screen.pacer.duringFlight = [&] {
            ++flights;
            QVERIFY(!gameSpeed->isEnabled());
        };
        QTest::mouseClick(screen.shoot(), Qt::LeftButton);
        QVERIFY(flights > 0);
        QVERIFY(gameSpeed->isEnabled());
    }

    void refusesABoxThatClicksTooLate() {
        Screen screen{2, "Ann", "Computer"};
        QCheckBox* const sound = screen.box("chkSound");
        bool hasClicked = false;
        connect(sound, &QCheckBox::clicked, this, [&] { hasClicked = true; });
        screen.pacer.atYield = [&] { QTRY_VERIFY(hasClicked); };  // the computer's turn by now
        sound->animateClick();
        QTest::mouseClick(screen.shoot(), Qt::LeftButton);
        const bool& isOn = screen.form->battle().state().SoundOn;
        QCOMPARE((QList{hasClicked, sound->isChecked(), isOn}), (QList{true, false, false}));
        QTRY_VERIFY(sound->isEnabled());
        sound->click();
        QCOMPARE((QList{sound->isChecked(), isOn}), (QList{true, true}));
    }

    void switchesTheLightOverTheField() {
        Screen screen;
        QCheckBox* const effects = screen.box("chkEffects");
        QVERIFY(effects->isChecked());
        const auto rules = [&] {
            const FieldPicture& of = screen.form->battle().picture();
            return QImage{reinterpret_cast<const uchar*>(of.screenPixels()), of.width(),
                          of.height(), QImage::Format_RGB32};
        };
        const auto shown = [&] {
            return screen.field()->grab().toImage().convertToFormat(QImage::Format_RGB32);
        };
        QVERIFY(shown() != rules());
        const auto activity = screen.form->battle().state().TurnStartTime;
        screen.clock.time += std::chrono::seconds{5};
        QTest::keyClick(screen.form.get(), Qt::Key_F, Qt::AltModifier);
        QTRY_VERIFY(!effects->isChecked());
        QVERIFY(shown() == rules());
        QVERIFY(screen.form->battle().state().TurnStartTime == activity);
        QVERIFY(screen.windows.recall(kEffectsKey, "1") == "0");
        int flights = 0;
        screen.pacer.duringFlight = [&] {
            if (++flights % 20 == 0) QVERIFY(shown() == rules());
        };
        QTest::mouseClick(screen.shoot(), Qt::LeftButton);
        QVERIFY(flights > 40);
        frmPlayGame next{{screen.shared, screen.settings, screen.shapes, screen.windows},
                         {screen.random, screen.clock, screen.pacer, screen.sounds, screen.boxes,
                          screen.settings}};
        QVERIFY(!next.findChild<QCheckBox*>("chkEffects")->isChecked());
    }

    void isAsCalmAsADesktopAsksForInTheEnd() {
        QList<QImage> shots;
        for (const Motion motion : {Motion::Full, Motion::Full, Motion::Reduced}) {
            Screen screen;
            screen.shared.motion = motion;
            screen.pacer.duringFlight = [&shots, &screen, flights = 0]() mutable {
                if (++flights == 1) shots.append(screen.field()->grab().toImage());
            };
            QTest::mouseClick(screen.shoot(), Qt::LeftButton);
        }
        QVERIFY(shots.at(1) == shots.at(0) && shots.at(2) != shots.at(0));
    }

    void showsNamesAsTheyAre() {
        Screen screen{2, "<b>A&B</b>", "Computer"};
        const auto frames = screen.form->findChildren<QGroupBox*>();
        QCOMPARE(frames.at(0)->title(), QStringLiteral("<b>A&&B</b>"));
        QCOMPARE(frames.at(1)->title(), QStringLiteral("Computer (Skill level: Fair)"));
    }

    void fitsAllTextsInAllSizesWithoutClashes() {
        for (const int size : {1, 2, 3}) {
            Screen screen{size, "WWWWWWWWWWWWWWWWWWWW"};
            for (int shot = 1; shot <= 2; ++shot) QTest::mouseClick(screen.shoot(), Qt::LeftButton);
            QVERIFY(screen.shows("was 300"));
            screen.random.script({0});
            screen.box("chkWind")->click();  // "Wind  <--39"
            QStringList keys;
            for (const QShortcut* shortcut : screen.form->findChildren<QShortcut*>())
                keys << shortcut->key().toString();
            for (const QWidget* widget : screen.form->findChildren<QWidget*>()) {
                if (!widget->isVisible()) continue;
                const QByteArray name = widget->accessibleName().toUtf8();
                QVERIFY2(widget->parentWidget()->rect().contains(widget->geometry()), name);
                if (const auto* button = qobject_cast<const GlintButton*>(widget)) {
                    const GlintState& state = button->state();
                    keys
                        << QKeySequence::mnemonic(QString::fromStdString(state.Caption)).toString();
                    QVERIFY2(state.text.left >= 4 && state.text.right <= button->width() - 4, name);
                    continue;
                }
                const auto* box = qobject_cast<const QAbstractButton*>(widget);
                if (box) keys << box->shortcut().toString();
                if (box || qobject_cast<const QLabel*>(widget))
                    QVERIFY2(widget->sizeHint().width() <= widget->width(), name);
            }
            keys.removeAll({});
            QCOMPARE(keys.size(), 15);  // S Q O T M L F, W P A G V, F1 F11 Esc
            QCOMPARE(keys.removeDuplicates(), 0);
            QCOMPARE(screen.form->windowTitle(), " Skylob - Battlefield");
            QCOMPARE(screen.shoot()->plainCaption().isEmpty(), size == 1);
            QCOMPARE(screen.shoot()->toolTip(),
                     size == 1 ? QStringLiteral(" Shoot your Artillery Piece ") : QString{});
        }
    }

    void losesTrailsWithTheWindow() {
        Screen screen;
        QTest::mouseClick(screen.shoot(), Qt::LeftButton);
        const auto redPixels = [&] {
            const QImage image = screen.field()->grab().toImage();
            int red = 0;
            for (int i = 0; i < image.width() * image.height(); ++i)
                red += image.pixel(i % image.width(), i / image.width()) == 0xFFFF0000u;
            return red;
        };
        const int stars = (screen.form->hide(), screen.form->show(), redPixels());
        for (int shot = 1; shot <= 2; ++shot) QTest::mouseClick(screen.shoot(), Qt::LeftButton);
        QVERIFY(redPixels() > stars + 50);
        screen.form->hide();
        screen.form->show();
        QCOMPARE(redPixels(), stars);
        QCOMPARE(screen.form->battle().state().RoundNumber, 1);
    }

    void takesANewSizeWhenTheShotIsOver() {
        Screen screen, untouched;
        const Battlefield& field = screen.form->battle().state().field;
        const auto shown = [&] { return screen.field()->grab().toImage(); };
        const QRgb ground = field.groundColour.pixel();
        int flights = 0;
        screen.pacer.duringFlight = [&] {
            if (++flights != 3) return;
            screen.form->resize(1500, 900);
            QCOMPARE(shown().size(), QSize(1476, 684));
            QCOMPARE(shown().pixel(810, 197), ground);  // the mountain's top, at 550, 720
            QVERIFY(shown().pixel(810, 185) != ground);
        };
        for (Screen* each : {&untouched, &screen}) QTest::mouseClick(each->shoot(), Qt::LeftButton);
        const auto seenAt = [plotted = shown()](int x, int y) {
            return plotted.pixel(qRound((x - 1) * 1475 / 999.0),
                                 683 - qRound((y - 1) * 683 / 999.0));
        };
        qsizetype stars = 0, columns = 0;
        for (const auto& star : field.stars) stars += seenAt(star.x, star.y) == star.colour.pixel();
        for (int x = 1; x <= kColumns; ++x)
            columns += seenAt(x, field.heightAt(x) - 20) == ground &&
                       seenAt(x, field.heightAt(x) + 40) != ground;
        QVERIFY2(stars > 860, qPrintable(QString::number(stars)));      // a trail hides the others
        QVERIFY2(columns > 980, qPrintable(QString::number(columns)));  // and a mark
        QCOMPARE(screen.random.draws(), untouched.random.draws());
        QTest::mouseClick(screen.field(), Qt::LeftButton, {}, {1275, 664});  // the right piece
        QCOMPARE(screen.shots(), 2u);
    }

    void fillsTheScreenAndScrollsWhereThatIsSmall() {
        Screen screen{1};
        for (const bool full : {true, false}) {
            QTest::keyClick(screen.form.get(), Qt::Key_F11);
            QCOMPARE(screen.form->isFullScreen(), full);
        }
        screen.form->fitInto({640, 450});
        const auto inView = [](QWidget* widget) { return widget->visibleRegion().boundingRect(); };
        for (QWidget* control : {static_cast<QWidget*>(screen.bar("scrollSpeed(1)")),
                                 static_cast<QWidget*>(screen.box("chkWind"))}) {
            control->setFocus();
            QCOMPARE(inView(control), control->rect());
        }
        screen.form->fitInto({480, 450});
        screen.pacer.duringFlight = [&] {
            QCOMPARE(inView(screen.field()).height(), 400);
            const auto shell = screen.field()->placeOfShell(screen.form->battle().scene());
            QVERIFY(inView(screen.field()).contains(shell.value()));
        };
        for (int shot = 1; shot <= 2; ++shot)
            QTest::keyClick(screen.form.get(), Qt::Key_S, Qt::AltModifier);
        QCOMPARE(screen.shots(), 2u);
    }

    void laysOutAnySize() {
        const struct {
            int chosen;
            QSize screen;
            QList<QRect> places;  // field, side 2, shoot, effects
        } layouts[] = {
            {1,
             {640, 480},
             {{8, 8, 768, 400}, {8, 438, 424, 88}, {440, 438, 56, 88}, {644, 2, 100, 24}}},
            {1,
             {884, 570},
             {{8, 8, 868, 400}, {8, 438, 424, 88}, {490, 438, 56, 88}, {744, 2, 100, 24}}},
            {2,
             {1008, 1040},
             {{12, 12, 984, 824}, {652, 872, 344, 120}, {368, 904, 176, 88}, {876, 4, 96, 24}}},
            {3,
             {1920, 1080},
             {{12, 12, 1896, 896}, {1468, 944, 440, 84}, {792, 972, 228, 56}, {1756, 4, 110, 24}}}};
        for (const auto& [chosen, screen, places] : layouts) {
            const frmPlayGameLayout at = stretched(layoutForScreenSize(chosen), screen);
            QCOMPARE((QList<QRect>{at.field, at.frame[2], at.cmdShoot, at.chkEffects}), places);
        }
        const std::tuple<int, QSize, int> rooms[] = {
            {3, {1264, 764}, 3},  {3, {1263, 764}, 2}, {3, {1008, 727}, 1}, {2, {5000, 3000}, 2},
            {1, {5000, 3000}, 1}, {3, {640, 460}, 1},  {9, {1300, 800}, 2}};
        for (const auto& [chosen, room, taken] : rooms)
            QCOMPARE(layoutForRoom(chosen, room).screen, layoutForScreenSize(taken).screen);
        const std::tuple<QSize, qreal, int> pens[] = {
            {{984, 512}, 1.25, 1}, {{984, 512}, 1.5, 2}, {{1896, 830}, 1, 2}, {{1896, 830}, 2, 3},
            {{1896, 600}, 1, 1},   {{2000, 512}, 1, 2},  {{984, 3000}, 1, 1}};
        for (const auto& [field, ratio, width] : pens)
            QCOMPARE(dotScaleOf({984, 512}, field, ratio), width);
    }

    void endsAMeteorOrAStormForWhatThePlayerDoes() {
        for (const char* name : {"timerMeteors", "timerLightning"}) {
            Screen screen;
            auto* const timer = screen.form->findChild<QTimer*>(name);
            QCOMPARE(timer->interval(), name == QByteArray{"timerMeteors"} ? 333 : 500);
            screen.form->hide();
            QVERIFY(!timer->isActive());
            screen.form->show();
            QVERIFY(timer->isActive());
            QCheckBox* const meteors = screen.box("chkMeteors");
            const std::function<void()> deeds[] = {
                [&] { meteors->click(); },
                [&] { QTest::mouseClick(screen.shoot(), Qt::LeftButton); },
                [&] { screen.form->close(); }};
            for (const auto& deed : deeds) {
                int yields = 0;
                screen.pacer.atYield = [&] {
                    if (++yields == 20) deed();
                };
                screen.clock.time += std::chrono::hours{1};
                screen.random.script({0});
                QTRY_VERIFY(yields >= 20);
                screen.pacer.atYield = {};
                QVERIFY(yields < 25);
            }
            QCOMPARE(screen.shots(), 1u);
            QCOMPARE((QList{meteors->isChecked(), screen.form->isVisible(), timer->isActive()}),
                     QList<bool>(3, false));
        }
    }

    void looksAliveInAStormAndClosesAfterIt() {
        Screen screen;
        frmPlayGame& form = *screen.form;
        const auto seen = [&form] { return form.screen()->grabWindow(form.winId()).toImage(); };
        const QPoint golden = screen.shoot()->geometry().bottomRight() - QPoint{20, 20};
        const int brightness = form.grab().toImage().pixelColor(golden).lightness();
        QImage before, rain;
        screen.pacer.inStorm = [&](std::int32_t left) {
            const QImage image = std::exchange(before, seen());
            QVERIFY(before != image);
            QCOMPARE(before, form.grab().toImage());  // painted bit by bit, and all at once
            QVERIFY(before.pixelColor(golden).lightness() < brightness * 2 / 3);
            QVERIFY(screen.shoot()->isEnabled());
            QCOMPARE(form.cursor().shape(), Qt::WaitCursor);
            const char* const says =
                left > 60'000 ? "1:01" : "0:01  Closing waits until it is over.";
            if (left != 60'000)
                QVERIFY(screen.shows(QStringLiteral("A storm holds the field.  ") + says));
            screen.bar("scrollGameSpeed")->setValue(left % 99);  // as a screen reader does
            QVERIFY(screen.shows("Game Speed: 99"));
            if (left == 61'000) QCoreApplication::postEvent(form.windowHandle(), new QCloseEvent);
            QVERIFY(std::exchange(rain, screen.field()->grab().toImage()) != rain);
            if (left != 60'000) return;
            form.resize(1200, 800);
            rain = screen.field()->grab().toImage();  // shown scaled from now on
        };
        screen.clock.time += std::chrono::hours{1};
        screen.random.script({0});
        QMetaObject::invokeMethod(form.findChild<QTimer*>("timerLightning"), "timeout");
        QCOMPARE((QList{before.isNull(), form.isVisible()}), (QList{false, false}));
        QCOMPARE(form.cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(screen.bar("scrollGameSpeed")->value(), 99);
    }

    void boxesAreWideEnoughForTheirTitles() {
        const char* const title = "Change the Highlighted Player's Name";
        const QtShapes drawings{programDrawings()};
        QtMessageBoxes boxes{drawings};
        int room = 0;
        bool isTextCut = false;
        const auto measure = [&] {
            QWidget* const box = QApplication::activeModalWidget();
            for (const QLabel* label : box->findChildren<QLabel*>())
                isTextCut = isTextCut || label->width() < label->sizeHint().width();
            QFont bold = QApplication::font();
            bold.setBold(true);
            room = box->width() - QFontMetrics{bold}.horizontalAdvance(box->windowTitle());
            box->close();
        };
        QTimer::singleShot(0, this, measure);
        boxes.ask({title, "to...", ""});
        QVERIFY(room >= 100);  // an icon and three or four buttons
        QTimer::singleShot(0, this, measure);
        boxes.show({title, "Yes?", BoxIcon::Question, BoxButtons::YesNo});
        QVERIFY(room >= 100);
        QTimer::singleShot(0, this, measure);
        boxes.show({"?", "Are you sure you wish to remove Ann?"});
        QVERIFY(!isTextCut);
    }

    void boxesShowPlainTextAboveTheModalWindowAndTakeClosingForNo() {
        const QtShapes drawings{programDrawings()};
        QtMessageBoxes boxes{drawings};
        QDialog modal;
        QWidget behind;
        modal.setModal(true);
        modal.show();
        behind.show();
        QVERIFY(QTest::qWaitForWindowActive(&behind));
        QTimer::singleShot(0, this, [&modal] {
            QWidget* const box = QApplication::activeModalWidget();
            const auto* const label = box->findChild<QLabel*>("labelText");
            QCOMPARE(label->textFormat(), Qt::PlainText);
            QCOMPARE(label->text(), QStringLiteral("<b>?</b>\n\nReally"));
            QCOMPARE(box->windowHandle()->transientParent(), modal.windowHandle());
            QTest::keyClick(box, Qt::Key_Escape);
        });
        QVERIFY(boxes.show({"", "<b>?</b>\r\n\r\nReally", BoxIcon::Question, BoxButtons::YesNo}) ==
                BoxAnswer::No);
    }
};

int frmPlayGameTest_main(int argc, char** argv) {
    return skylob::test::runTest<frmPlayGameTest>(argc, argv);
}
#include "frmPlayGameTest.moc"
