#include "battle/frmPlayGame.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "app/QtMessageBoxes.h"
#include "app/QtSettingsStore.h"
#include "battle/picGameField.h"
#include "controls/GlintButton.h"
#include "tests/support/Fakes.h"

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
            shared, frmPlayGamePorts{random, clock, pacer, sounds, boxes, settings, shapes,
                                     [this](SummaryKind) { ++summaries; }});
        form->show();
        form->activateWindow();
        (void)QTest::qWaitForWindowActive(form.get());
    }

    template <typename Widget>
    Widget* find(const QString& accessibleName) {
        for (Widget* widget : form->findChildren<Widget*>())
            if (widget->isEnabled() && widget->accessibleName() == accessibleName) return widget;
        return nullptr;
    }
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
    int summaries = 0;
    std::unique_ptr<frmPlayGame> form;
};

}  // namespace

class frmPlayGameTest : public QObject {
    Q_OBJECT

  private slots:
    void playsATurnByKeyboardAlone() {
        Screen screen;
        QScrollBar* const speed = screen.find<QScrollBar>("Speed");
        QVERIFY(speed->hasFocus());
        QTest::keyClick(speed, Qt::Key_Right);
        QTest::keyClick(speed, Qt::Key_PageUp);
        QVERIFY(screen.shows("Speed: 311"));
        QTest::keyClick(speed, Qt::Key_Down);
        QTest::keyClick(speed, Qt::Key_Left);
        QVERIFY(screen.shows("Speed: 309"));
        QTest::keyClick(speed, Qt::Key_End);
        QTest::keyClick(speed, Qt::Key_Tab);
        QScrollBar* const angle = screen.find<QScrollBar>("Angle");
        QVERIFY(angle->hasFocus());
        QTest::keyClick(angle, Qt::Key_PageUp);
        QVERIFY(screen.shows("Angle:   80"));
        QTest::keyClick(angle, Qt::Key_Tab);
        QVERIFY(screen.shoot()->hasFocus());
        QTest::keyClick(screen.shoot(), Qt::Key_Return);
        QCOMPARE(screen.shots(), 0u);
        QTest::keyClick(screen.shoot(), Qt::Key_Space);
        QCOMPARE(screen.shots(), 1u);
        QCOMPARE(screen.form->battle().shots()[0].speed, 999);
        QCOMPARE(screen.form->battle().shots()[0].angle, 80);
        QVERIFY(screen.shoot()->hasFocus());  // it was there, so it stays
        QTest::keyClick(screen.form.get(), Qt::Key_A, Qt::AltModifier);
        QVERIFY(screen.find<QScrollBar>("Angle")->hasFocus());
        QVERIFY(!angle->hasFocus());  // the other side's now
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
        QScrollBar* const enemySpeed = screen.form->findChildren<QScrollBar*>().at(2);
        int flights = 0;
        screen.pacer.duringFlight = [&] {
            if (++flights != 3) return;
            // Queued as the window system queues it: seen only when events are served again.
            for (QWidget* target :
                 {static_cast<QWidget*>(shoot), static_cast<QWidget*>(enemySpeed)}) {
                for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                    QCoreApplication::postEvent(
                        target,
                        new QMouseEvent(type, QPointF{5, 5}, target->mapToGlobal(QPointF{5, 5}),
                                        Qt::LeftButton, Qt::LeftButton, {}));
                }
            }
            QTest::keyClick(screen.form.get(), Qt::Key_Escape);
            QVERIFY(!screen.form->close());
        };
        QTest::mouseClick(shoot, Qt::LeftButton);
        QCoreApplication::processEvents();
        QVERIFY(flights >= 3);
        QCOMPARE(screen.shots(), 1u);
        QVERIFY(screen.form->isVisible());
        QVERIFY(screen.shows("Speed: 300"));
        QTest::mouseClick(shoot, Qt::LeftButton);
        QCOMPARE(screen.shots(), 2u);
    }

    void showsNamesAsTheyAre() {
        Screen screen{2, "<b>A&B</b>", "Computer"};
        const auto frames = screen.form->findChildren<QGroupBox*>();
        QCOMPARE(frames.at(0)->title(), QStringLiteral("<b>A&&B</b>"));
        QCOMPARE(frames.at(1)->title(), QStringLiteral("Computer (Skill level: Fair)"));
    }

    void fitsAllTextsInAllSizesWithoutClashes_data() {
        QTest::addColumn<int>("size");
        for (const int size : {1, 2, 3}) QTest::addRow("size %d", size) << size;
    }
    void fitsAllTextsInAllSizesWithoutClashes() {
        QFETCH(int, size);
        Screen screen{size, "WWWWWWWWWWWWWWWWWWWW"};
        screen.random.script({0});
        screen.form->findChildren<QCheckBox*>().last()->click();  // "Wind  <--39"
        QStringList keys;
        for (const QShortcut* shortcut : screen.form->findChildren<QShortcut*>())
            keys << shortcut->key().toString();
        for (const QWidget* widget : screen.form->findChildren<QWidget*>()) {
            if (!widget->isVisible()) continue;
            QVERIFY2(widget->parentWidget()->rect().contains(widget->geometry()),
                     qPrintable(widget->accessibleName()));
            if (const auto* box = qobject_cast<const QAbstractButton*>(widget)) {
                if (!box->shortcut().isEmpty()) keys << box->shortcut().toString();
                QVERIFY2(box->sizeHint().width() <= box->width(), qPrintable(box->text()));
            }
            if (const auto* button = qobject_cast<const GlintButton*>(widget)) {
                const GlintState& state = button->state();
                const auto key = QKeySequence::mnemonic(QString::fromStdString(state.Caption));
                if (!key.isEmpty()) keys << key.toString();
                QVERIFY2(state.text.left >= 4 && state.text.right <= button->width() - 4,
                         qPrintable(button->plainCaption()));
            }
            if (const auto* label = qobject_cast<const QLabel*>(widget))
                QVERIFY2(label->sizeHint().width() <= label->width(), qPrintable(label->text()));
        }
        QCOMPARE(keys.size(), 11);  // S Q O T M L, W P A G, Esc
        QCOMPARE(QSet<QString>(keys.begin(), keys.end()).size(), keys.size());
        QCOMPARE(screen.shoot()->plainCaption().isEmpty(), size == 1);
        QCOMPARE(screen.shoot()->toolTip(),
                 size == 1 ? QStringLiteral(" Shoot your Artillery Piece ") : QString{});
    }

    void losesTrailsWithTheWindow() {
        Screen screen;
        QTest::mouseClick(screen.shoot(), Qt::LeftButton);
        const auto redPixels = [&] {
            const QImage image =
                screen.field()->grab().toImage().convertToFormat(QImage::Format_RGB32);
            int red = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x) red += image.pixel(x, y) == 0xFFFF0000u;
            return red;
        };
        const int stars = (screen.form->hide(), screen.form->show(), redPixels());
        QTest::mouseClick(screen.shoot(), Qt::LeftButton);
        QTest::mouseClick(screen.shoot(), Qt::LeftButton);
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
            QVERIFY(timer->isActive());
            QCOMPARE(timer->interval(), qstrcmp(name, "timerMeteors") == 0 ? 333 : 500);
            screen.form->hide();
            QVERIFY(!timer->isActive());
            screen.form->show();
            QVERIFY(timer->isActive());
            // The boxes of meteors and lightning, the shoot button, and the window's frame.
            QCheckBox* const meteors = screen.form->findChildren<QCheckBox*>().at(2);
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
            QVERIFY(!meteors->isChecked());
            QCOMPARE(screen.shots(), 1u);
            QVERIFY(!screen.form->isVisible());
            QVERIFY(!timer->isActive());
        }
    }

    void leavesThroughItsFrameAsThroughQuit() {
        Screen screen;
        const QSignalSpy closed{screen.form.get(), &frmPlayGame::battleClosed};
        QVERIFY(!screen.form->close());
        QCOMPARE(closed.count(), 1);
        QVERIFY(!screen.form->isVisible());
        QCOMPARE(QString::fromStdString(screen.settings.get("MeteorsSetting", "")), QString{"1"});
    }

    void boxesShowPlainTextAndTakeClosingForNo() {
        QtMessageBoxes boxes;
        QTimer::singleShot(0, this, [] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box);
            QCOMPARE(box->textFormat(), Qt::PlainText);
            QCOMPARE(box->text(), QStringLiteral("<b>?</b>\n\nReally"));
            QCOMPARE(box->icon(), QMessageBox::Question);
            QTest::keyClick(box, Qt::Key_Escape);
        });
        const auto answer =
            boxes.show({"Title", "<b>?</b>\r\n\r\nReally", BoxIcon::Question, BoxButtons::YesNo});
        QVERIFY(answer == BoxAnswer::No);
    }

    void keepsSettingsInAFileOfTheUser() {
        const QTemporaryDir folder;
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
        QtSettingsStore{}.save("GameSpeed", "42");
        QCOMPARE(QString::fromStdString(QtSettingsStore{}.get("GameSpeed", "0")), QString{"42"});
        QCOMPARE(QString::fromStdString(QtSettingsStore{}.get("NewUser", "")), QString{});
        QFile file{folder.filePath("Skylob/Skylob.ini")};
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray{"[Defaults]\nGameSpeed=42\n"});
    }
};

QTEST_MAIN(frmPlayGameTest)
#include "frmPlayGameTest.moc"
