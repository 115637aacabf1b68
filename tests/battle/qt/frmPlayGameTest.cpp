#include <QAbstractButton>
#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QScrollBar>
#include <QShortcut>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "battle/qt/picGameField.h"
#include "controls/qt/GlintButton.h"
#include "screen/qt/QtMessageBoxes.h"
#include "tests/support/BattleScreen.h"

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
        QVERIFY(flights >= 3 && screen.form->isVisible());
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
        QVERIFY(hasClicked && !sound->isChecked() && !screen.form->battle().state().SoundOn);
        QTRY_VERIFY(sound->isEnabled());
        sound->click();
        QVERIFY(sound->isChecked() && screen.form->battle().state().SoundOn);
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
        FieldPicture& picture = const_cast<Battle&>(screen.form->battle()).picture();
        // What is seen at a point of the field, wherever it is shown.
        const auto seen = [&](int x, int y) {
            const QImage image = screen.field()->grab().toImage();
            return image.pixel((x - 1) * (image.width() - 1) / 999,
                               (1000 - y) * (image.height() - 1) / 999);
        };
        const QRgb ground = field.groundColour.pixel();
        int flights = 0;
        screen.pacer.duringFlight = [&] {
            if (++flights != 3) return;
            screen.form->resize(1500, 900);
            QCOMPARE(screen.field()->size(), QSize(1476, 684));
            QCOMPARE(picture.width(), 984);
            for (const int x : {3, 550, 998}) {
                QCOMPARE(seen(x, field.heightAt(x) - 5), ground);
                QVERIFY(seen(x, field.heightAt(x) + 5) != ground);
            }
        };
        for (Screen* each : {&untouched, &screen}) QTest::mouseClick(each->shoot(), Qt::LeftButton);
        QCOMPARE(picture.width(), 1476);
        QCOMPARE(picture.height(), 684);
        const int landedAt = screen.form->battle().shots().at(0).landedAt.x;
        for (int x = 1; x <= kColumns; ++x) {  // under the pieces and above them
            if (std::abs(x - landedAt) < 10) continue;
            QCOMPARE(picture.pixel(x, field.heightAt(x) - 20), field.groundColour);
            QVERIFY(picture.pixel(x, field.heightAt(x) + 40) != field.groundColour);
        }
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
        QCOMPARE(screen.form->size(), QSize(640, 450));
        for (QWidget* control :
             std::initializer_list<QWidget*>{screen.bar("scrollSpeed(1)"), screen.box("chkWind"),
                                             screen.bar("scrollAngle(1)"), screen.shoot()}) {
            control->setFocus();
            QCOMPARE(control->visibleRegion().boundingRect(), control->rect());
        }
        screen.pacer.duringFlight = [&] {
            QCOMPARE(screen.field()->visibleRegion().boundingRect().height(), 400);
        };
        QTest::mouseClick(screen.shoot(), Qt::LeftButton);
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
            QVERIFY(!meteors->isChecked() && !screen.form->isVisible() && !timer->isActive());
        }
    }

    void looksAliveInAStormAndClosesAfterIt() {
        Screen screen;
        frmPlayGame& form = *screen.form;
        const auto seen = [&form] { return form.screen()->grabWindow(form.winId()).toImage(); };
        const QPoint golden = screen.shoot()->geometry().bottomRight() - QPoint{20, 20};
        const int brightness = form.grab().toImage().pixelColor(golden).lightness();
        QImage before;
        screen.pacer.inStorm = [&](std::int32_t left) {
            const QImage image = std::exchange(before, seen());
            QVERIFY(before != image);
            QCOMPARE(before, form.grab().toImage());  // painted bit by bit, and all at once
            QVERIFY(before.pixelColor(golden).lightness() < brightness * 2 / 3);
            QVERIFY(screen.shoot()->isEnabled() && form.cursor().shape() == Qt::WaitCursor);
            const char* const says =
                left > 60'000 ? "1:01" : "0:01  Closing waits until it is over.";
            if (left != 60'000)
                QVERIFY(screen.shows(QStringLiteral("A storm holds the field.  ") + says));
            screen.bar("scrollGameSpeed")->setValue(left % 99);  // as a screen reader does
            QVERIFY(screen.shows("Game Speed: 99"));
            if (left == 61'000) QCoreApplication::postEvent(form.windowHandle(), new QCloseEvent);
        };
        screen.clock.time += std::chrono::hours{1};
        screen.random.script({0});
        QMetaObject::invokeMethod(form.findChild<QTimer*>("timerLightning"), "timeout");
        QVERIFY(!before.isNull() && !form.isVisible() && form.cursor().shape() == Qt::ArrowCursor);
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
            QVERIFY(label && label->textFormat() == Qt::PlainText);
            QCOMPARE(label->text(), QStringLiteral("<b>?</b>\n\nReally"));
            QCOMPARE(box->windowHandle()->transientParent(), modal.windowHandle());
            QTest::keyClick(box, Qt::Key_Escape);
        });
        QVERIFY(boxes.show({"", "<b>?</b>\r\n\r\nReally", BoxIcon::Question, BoxButtons::YesNo}) ==
                BoxAnswer::No);
    }
};

QTEST_MAIN(frmPlayGameTest)
#include "frmPlayGameTest.moc"
