#include "battle/qt/frmPlayGame.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QScrollBar>
#include <QShortcut>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "battle/qt/picGameField.h"
#include "controls/qt/GlintButton.h"
#include "look/qt/QtShapes.h"
#include "screen/qt/QtMessageBoxes.h"
#include "tests/support/BattleRig.h"

using namespace skylob;

namespace {

/// Runs a script at every counted wait, that is while a shell is in the air.
class InterruptedPacer : public InstantPacer {
  public:
    void countedWait(std::int32_t) override {
        if (duringFlight) duringFlight();
    }
    void yieldToEvents() override {
        QCoreApplication::processEvents();
        if (atYield) atYield();
    }
    std::function<void()> duringFlight, atYield;
};

/// The battle screen, shown, on the field that chance of 0.5 makes (see test::BattleRig).
struct Screen {
    explicit Screen(int size = 2, std::string name = "Ann", std::string opponent = "Bob") {
        shared.PlayerName = {std::move(name), std::move(opponent)};
        shared.ScreenSize = size;
        shared.NumRounds = 5;
        settings.save("GameSpeed", "99");
        settings.save("SoundSetting", "0");
        form = std::make_unique<frmPlayGame>(
            QtScreenPorts{shared, settings, shapes, windows},
            BattlePorts{random, clock, pacer, sounds, boxes, settings});
        form->show();
        form->activateWindow();
        (void)QTest::qWaitForWindowActive(form.get());
    }

    QScrollBar* bar(const char* name) { return form->findChild<QScrollBar*>(name); }
    QCheckBox* box(const char* name) { return form->findChild<QCheckBox*>(name); }
    GlintButton* shoot() { return form->findChild<GlintButton*>("cmdShoot"); }
    picGameField* field() { return form->findChild<picGameField*>(); }
    bool shows(const QString& text) {
        for (const QLabel* label : form->findChildren<QLabel*>())
            if (label->text() == text && label->isVisible()) return true;
        return false;
    }
    std::size_t shots() const { return form->battle().shots().size(); }

    const QtShapes shapes{programDrawings()};
    test::Log log;
    basSkylob shared;
    test::ScriptedRandom random{{0.1}, 0.5};  // the first shooter is side 1
    test::HandSetClock clock;
    InterruptedPacer pacer;
    SilentSounds sounds;
    test::QueuedBoxes boxes{log};
    MemorySettings settings;
    MemoryWindows windows;
    std::unique_ptr<frmPlayGame> form;
};

}  // namespace

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

    void showsNamesAsTheyAre() {
        Screen screen{2, "<b>A&B</b>", "Computer"};
        const auto frames = screen.form->findChildren<QGroupBox*>();
        QCOMPARE(frames.at(0)->title(), QStringLiteral("<b>A&&B</b>"));
        QCOMPARE(frames.at(1)->title(), QStringLiteral("Computer (Skill level: Fair)"));
    }

    void fitsAllTextsInAllSizesWithoutClashes() {
        for (const int size : {1, 2, 3}) {
            Screen screen{size, "WWWWWWWWWWWWWWWWWWWW"};
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
            QCOMPARE(keys.size(), 12);  // S Q O T M L F, W P A G, Esc
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

    void boxesAreWideEnoughForTheirTitles() {
        const char* const title = "Change the Highlighted Player's Name";
        QtMessageBoxes boxes;
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
        QtMessageBoxes boxes;
        QDialog modal;
        QWidget behind;
        modal.setModal(true);
        modal.show();
        behind.show();
        QVERIFY(QTest::qWaitForWindowActive(&behind));
        QTimer::singleShot(0, this, [&modal] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box && box->textFormat() == Qt::PlainText);
            QCOMPARE(box->text(), QStringLiteral("<b>?</b>\n\nReally"));
            QCOMPARE(box->windowHandle()->transientParent(), modal.windowHandle());
            QTest::keyClick(box, Qt::Key_Escape);
        });
        QVERIFY(boxes.show({"", "<b>?</b>\r\n\r\nReally", BoxIcon::Question, BoxButtons::YesNo}) ==
                BoxAnswer::No);
    }
};

QTEST_MAIN(frmPlayGameTest)
#include "frmPlayGameTest.moc"
