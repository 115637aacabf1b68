#include "players/qt/frmGetPlayers.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QCheckBox>
#include <QCompleter>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QShortcut>
#include <QShortcutEvent>
#include <QSignalSpy>
#include <QTableView>
#include <QTimer>
#include <QtTest>

#include "controls/qt/GlintButton.h"
#include "look/qt/QtShapes.h"
#include "players/qt/frmGetSkillLevel.h"
#include "players/qt/frmSummary.h"
#include "screen/Fade.h"
#include "screen/qt/QtModalGuard.h"
#include "tests/support/Fakes.h"
#include "tests/support/PlayersRig.h"

namespace skylob::test {

/// What all screens of the players share.
struct World : PlayersRig {
    Log log;
    HandSetClock clock;
    QueuedBoxes boxes{log};
    MemorySettings settings;
    RecordingSounds sounds{log};
    RecordingLinks links;
    const QtShapes shapes{programDrawings()};
    const QtScreenPorts screenPorts{shared, settings, shapes};
};

struct LobbyScreen : World {
    explicit LobbyScreen(const std::string& list) {
        put(list);
        form = std::make_unique<frmGetPlayers>(
            screenPorts, frmGetPlayersPorts{file, clock, boxes, sounds, links});
        QObject::connect(form.get(), &frmGetPlayers::computerChallenged,
                         [this] { ++skillQuestions; });
        form->show();
        (void)QTest::qWaitForWindowActive(form.get());
        grid = form->findChild<QTableView*>();
    }

    QString cell(int row, int column) const {
        return grid->model()->index(row, column).data().toString();
    }
    bool shows(const QString& text) const {
        for (const QLabel* label : form->findChildren<QLabel*>())
            if (label->text() == text && label->isVisible()) return true;
        return false;
    }

    int skillQuestions = 0;
    std::unique_ptr<frmGetPlayers> form;
    QTableView* grid = nullptr;
};

using namespace std::string_literals;

class frmGetPlayersTest : public QObject {
    Q_OBJECT

  private slots:
    void showsTheListAsItIs() {
        LobbyScreen screen{record("\xC5sa & <b>Bo</b>", "\x0E\0\x0B\0\x2E\0\1\0\0"s) +
                           record("", "\xFF\xFF\0\0\xFF\xFF\xFE\xFF\0"s) +
                           record("WWWWWWWWWWWWWWWWWWWW", kNew)};
        QCOMPARE(screen.grid->model()->rowCount(), 3);
        const char* const cells[3][5] = {{"\xC3\x85sa & <b>Bo</b>", "14/11", "46", "1", "1"},
                                         {"", "-1/0", "-1", "-2", "2"},
                                         {"WWWWWWWWWWWWWWWWWWWW", "0/0", "", "", "3"}};
        for (int row = 0; row < 3; ++row)
            for (int column = 0; column < 5; ++column)
                QCOMPARE(screen.cell(row, column), QString::fromUtf8(cells[row][column]));
        QVERIFY(screen.grid->isColumnHidden(4));
        QCOMPARE(screen.grid->model()->headerData(0, Qt::Horizontal).toString(),
                 QStringLiteral("Double-Click to Select Player"));
        QVERIFY(screen.grid->hasFocus());
        QCOMPARE(screen.grid->currentIndex().row(), 0);
    }

    void pairsByMouseAndByKeyboard() {
        LobbyScreen screen{record("Ann", kNew) + record("Bob", kNew)};
        QSignalSpy battle{screen.form.get(), &frmGetPlayers::battleChosen};
        QWidget* const rows = screen.grid->viewport();
        const QPoint first{40, 10};
        QTest::mouseDClick(screen.grid->horizontalHeader()->viewport(), Qt::LeftButton, {}, first);
        QVERIFY(!screen.shows("Ann"));
        QTest::mouseClick(rows, Qt::LeftButton, {}, first);
        QTest::mouseDClick(rows, Qt::LeftButton, {}, first);
        QVERIFY(screen.shows("Ann"));
        QLabel* chosen = nullptr;
        for (QLabel* label : screen.form->findChildren<QLabel*>())
            if (label->text() == "Ann") chosen = label;
        chosen->setFocus();
        QTest::keyClick(chosen, Qt::Key_Return);
        QVERIFY(!screen.shows("Ann"));
        screen.grid->setFocus();
        QTest::keyClick(screen.grid, Qt::Key_Return);
        QTest::mouseDClick(chosen, Qt::LeftButton);
        QVERIFY(!screen.shows("Ann"));
        QTest::keyClick(screen.form.get(), Qt::Key_C, Qt::AltModifier);
        QCOMPARE(battle.count(), 0);
        screen.grid->setFocus();
        QTest::keyClick(screen.grid, Qt::Key_Down);
        QTest::keyClick(screen.grid, Qt::Key_Enter);
        QCOMPARE(battle.count(), 1);
        QCOMPARE(screen.skillQuestions, 1);
        QCOMPARE(screen.shared.PlayerName[1], "Bob"s);
        QVERIFY(!screen.form->isVisible());
    }

    void storesOptionsAndRefusesToFade() {
        LobbyScreen screen{record("Ann", kNew)};
        const auto option = [&screen](const QString& caption) {
            for (auto* button : screen.form->findChildren<QRadioButton*>())
                if (button->text() == caption) return button;
            return static_cast<QRadioButton*>(nullptr);
        };
        QVERIFY(option("Normal")->isChecked());
        QVERIFY(option("10")->isChecked());
        option("10")->setFocus();
        QTest::keyClick(option("10"), Qt::Key_Down);
        QVERIFY(option("20")->isChecked());
        QCOMPARE(screen.settings.get("NumRounds", ""), "3"s);
        QCOMPARE(screen.shared.NumRounds, 20);
        screen.boxes.answers = {BoxAnswer::Ok};
        option("Enabled")->click();
        QVERIFY(option("Disabled")->isChecked());
        QCOMPARE(screen.settings.get("FadeStatus", ""), "False"s);
    }

    void sumsUpBothSidesFromTheStart() {
        World world;
        world.shared.PlayerName = {"Ann", "Bob"};
        world.shared.RoundsWon = {3, 0};
        world.shared.RoundKills = {17, 100};
        world.shared.TotalKills = {-32768, 122};
        ScriptedRandom random{{}, 0};
        const StringTable strings;
        const frmSummary form{
            world.screenPorts,
            SummaryKind::Round,
            {world.clock, random, world.sounds, world.boxes, strings, world.file}};
        QString figures;
        for (const char* name : {"labelRoundsWon(%1)", "labelKills(%1)", "labelTotalKills(%1)"})
            for (const int side : {1, 2})
                figures += form.findChild<QLabel*>(QString{name}.arg(side))->text() + " ";
        QCOMPARE(figures, QStringLiteral("3 0 17 100 -32768 122 "));
    }

    void leavesOnlyWhenConfirmed() {
        LobbyScreen screen{record("Ann", kNew)};
        QSignalSpy left{screen.form.get(), &frmGetPlayers::programLeft};
        screen.boxes.answers = {BoxAnswer::No, BoxAnswer::Yes};
        screen.form->close();
        QVERIFY(screen.form->isVisible());
        QTest::keyClick(screen.form.get(), Qt::Key_Escape);
        QCOMPARE(left.count(), 1);
        QVERIFY(!screen.form->isVisible());
    }

    void actsOnNothingBehindAModalWindow() {
        const QtModalGuard guard;
        LobbyScreen screen{record("Ann", kNew) + record("Bob", kNew)};
        QSignalSpy help{screen.form.get(), &frmGetPlayers::helpWanted};
        auto* const cmdHelp = screen.form->findChild<GlintButton*>("cmdHelp");
        QWidget* const rows = screen.grid->viewport();
        const auto useScreen = [&] {
            QTest::keyClick(screen.grid, Qt::Key_Down);
            // As the toolkit sends them while it takes the screen for the active window.
            for (auto* shortcut : screen.form->findChildren<QShortcut*>()) {
                QT_IGNORE_DEPRECATIONS(QShortcutEvent event(shortcut->key(), shortcut->id());)
                QCoreApplication::sendEvent(shortcut, &event);
            }
            QTest::mouseClick(rows, Qt::LeftButton, {}, {40, 10});
            QTest::mouseDClick(rows, Qt::LeftButton, {}, {40, 10});
            QTest::mouseClick(cmdHelp, Qt::LeftButton);
        };
        QDialog modal;
        QLineEdit entry{&modal};
        entry.setCompleter(new QCompleter{{"one"}, &modal});  // whose list has no parent
        modal.setModal(true);
        QTest::mousePress(cmdHelp, Qt::LeftButton);
        modal.show();
        QCOMPARE(cmdHelp->state().currentState, kStateUp);
        QTest::mouseRelease(cmdHelp, Qt::LeftButton);
        QVERIFY(QTest::qWaitForWindowActive(&modal));
        useScreen();
        QSignalSpy activated{qApp, &QGuiApplication::focusWindowChanged};
        screen.form->activateWindow();  // as a click on it does on some desktops
        QTRY_COMPARE(activated.count(), 2);
        QVERIFY(modal.isActiveWindow());
        QCOMPARE(screen.log, Log{});
        QCOMPARE(help.count(), 0);
        QVERIFY(!screen.shows("Ann") && screen.grid->currentIndex().row() == 0);

        QTest::keyClick(&entry, Qt::Key_O);
        for (const auto key : {Qt::Key_Down, Qt::Key_Return})
            QTest::keyClick(entry.completer()->popup(), key);
        QCOMPARE(entry.text(), QStringLiteral("one"));
        modal.close();
        QTest::mouseClick(cmdHelp, Qt::LeftButton);
        QTest::mouseClick(rows, Qt::LeftButton, {}, {40, 10});
        QTest::mouseDClick(rows, Qt::LeftButton, {}, {40, 10});
        QVERIFY(help.count() == 1 && screen.shows("Ann"));
    }

    void takesTheSkillLevel() {
        World world;
        const auto answer = [&world](int key, Qt::KeyboardModifiers modifiers = {}) {
            frmGetSkillLevel form{world.screenPorts};
            QTimer::singleShot(0, &form, [&] {
                (void)QTest::qWaitForWindowActive(&form);
                QTest::keyClick(form.focusWidget(), Qt::Key(key), modifiers);
            });
            form.showModal(nullptr);
            return world.shared.SkillLevel;
        };
        QCOMPARE(answer(Qt::Key_P, Qt::AltModifier), 6);
        QCOMPARE(answer(Qt::Key_Escape), 6);
        QCOMPARE(answer(Qt::Key_Space), 5);
        QCOMPARE(answer(Qt::Key_G, Qt::AltModifier), 4);
    }
};

}  // namespace skylob::test

QTEST_MAIN(skylob::test::frmGetPlayersTest)
#include "frmGetPlayersTest.moc"
