#include "players/qt/frmGetPlayers.h"

#include <QCompleter>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QShortcut>
#include <QShortcutEvent>
#include <QTableView>
#include <QTimer>
#include <QtTest>

#include "controls/qt/GlintButton.h"
#include "look/qt/QtShapes.h"
#include "players/qt/frmGetSkillLevel.h"
#include "players/qt/frmSummary.h"
#include "screen/qt/QtModalGuard.h"
#include "tests/support/PlayersRig.h"
#include "tests/support/ScreenTest.h"

namespace skylob::test {

/// What all screens of the players share.
struct World : PlayersRig {
    const QtShapes shapes{programDrawings()};
    MemoryWindows windows;
    const QtScreenPorts screenPorts{shared, settings, shapes, windows};
};

struct LobbyScreen : World {
    explicit LobbyScreen(const std::string& list) {
        put(list);
        form.show();
        (void)QTest::qWaitForWindowActive(&form);
    }

    template <typename Widget>
    Widget* child(const char* name) const {
        return form.findChild<Widget*>(name);
    }
    /// The names of the chosen players that can be seen.
    std::string chosen() const {
        QString names;
        for (const char* name : {"labelPlayerName(1)", "labelPlayerName(2)"})
            if (child<QLabel>(name)->isVisible()) names += child<QLabel>(name)->text();
        return names.toStdString();
    }
    bool isChecked(const char* option) const { return child<QRadioButton>(option)->isChecked(); }
    static void press(QWidget* widget, Qt::Key key) {
        widget->setFocus();
        QTest::keyClick(widget, key);
    }
    void clickFirstRowTwice() const {
        QTest::mouseClick(rows, Qt::LeftButton, {}, {40, 10});
        QTest::mouseDClick(rows, Qt::LeftButton, {}, {40, 10});
    }

    frmGetPlayers form{screenPorts, {file, clock, boxes, sounds, links}};
    QTableView* const grid = child<QTableView>("grid");
    QWidget* const rows = grid->viewport();
};

using namespace std::string_literals;

class frmGetPlayersTest : public QObject {
    Q_OBJECT

  private slots:
    void showsTheListAsItIs() {
        LobbyScreen screen{record("\xC5sa & <b>Bo</b>", 14, 11, 46, 1) +
                           record("", "\xFF\xFF\0\0\xFF\xFF\xFE\xFF\0"s) +
                           record("WWWWWWWWWWWWWWWWWWWW")};
        const auto& table = *screen.grid->model();
        QString cells;
        for (int row = 0; row < table.rowCount(); ++row)
            for (int column = 0; column < 5; ++column)
                cells += table.index(row, column).data().toString() + (column < 4 ? "|" : "\n");
        QCOMPARE(cells, QStringLiteral(u"\u00C5sa & <b>Bo</b>|14/11|46|1|1\n"
                                       "|-1/0|-1|-2|2\n"
                                       "WWWWWWWWWWWWWWWWWWWW|0/0|||3\n"));
        QVERIFY(screen.grid->isColumnHidden(4));
        QCOMPARE(table.headerData(0, Qt::Horizontal).toString(),
                 QStringLiteral("Double-Click to Select Player"));
        QVERIFY(screen.grid->hasFocus());
        QCOMPARE(screen.grid->currentIndex().row(), 0);
    }

    void pairsByMouseAndByKeyboard() {
        LobbyScreen screen{record("Ann") + record("Bob")};
        QSignalSpy battle{&screen.form, &frmGetPlayers::battleChosen};
        QSignalSpy skill{&screen.form, &frmGetPlayers::computerChallenged};
        QWidget* const header = screen.grid->horizontalHeader()->viewport();
        QTest::mouseDClick(header, Qt::LeftButton, {}, {40, 10});
        auto* const first = screen.child<QLabel>("labelPlayerName(1)");
        std::string chosen = screen.chosen() + '-';
        screen.clickFirstRowTwice();
        chosen += screen.chosen() + '-';
        screen.press(first, Qt::Key_Return);
        chosen += screen.chosen() + '-';
        screen.press(screen.grid, Qt::Key_Return);
        chosen += screen.chosen() + '-';
        QTest::mouseDClick(first, Qt::LeftButton);
        QCOMPARE(chosen + screen.chosen(), "-Ann--Ann-"s);
        QTest::keyClick(&screen.form, Qt::Key_C, Qt::AltModifier);
        QCOMPARE(battle.count(), 0);
        for (const auto key : {Qt::Key_Down, Qt::Key_Enter}) screen.press(screen.grid, key);
        QCOMPARE(battle.count(), 1);
        QCOMPARE(skill.count(), 1);
        QCOMPARE(screen.shared.PlayerName[1], "Bob"s);
        QVERIFY(!screen.form.isVisible());
    }

    void storesOptionsAndRefusesToFade() {
        LobbyScreen screen{record("Ann")};
        QVERIFY(screen.isChecked("optScreenSize(2)"));
        QVERIFY(screen.isChecked("optRounds(2)"));
        screen.press(screen.child<QRadioButton>("optRounds(2)"), Qt::Key_Down);
        QVERIFY(screen.isChecked("optRounds(3)"));
        QCOMPARE(screen.settings.get("NumRounds", ""), "3"s);
        QCOMPARE(screen.shared.NumRounds, 20);
        screen.boxes.answers = {BoxAnswer::Ok};
        screen.child<QRadioButton>("optFormFade(1)")->click();
        QVERIFY(screen.isChecked("optFormFade(2)"));
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

    void keepsTheHighlightAndGrows() {
        LobbyScreen screen{record("Ann") + record("Bob") + record("Cyd")};
        const auto rowAfter = [&screen](auto act) {
            act();
            const auto rows = screen.grid->selectionModel()->selectedRows();
            return rows.size() == 1 ? rows[0].row() : -1;
        };
        const auto press = [&screen](Qt::Key key) { screen.press(screen.grid, key); };
        const auto click = [&screen](Qt::KeyboardModifiers held, QPoint place) {
            QTest::mouseClick(screen.rows, Qt::LeftButton, held, place);
        };
        QCOMPARE(rowAfter([&] { press(Qt::Key_End); }), 2);
        QCOMPARE(rowAfter([&] { click({}, {40, 150}); }), 2);  // below the rows
        QCOMPARE(rowAfter([&] { click(Qt::ControlModifier, {40, 70}); }), 2);
        QCOMPARE(rowAfter([&] { press(Qt::Key_Home); }), 0);
        screen.boxes.entries = {"Dan"};
        QCOMPARE(rowAfter([&] { screen.child<GlintButton>("cmdAdd")->press(); }), 3);

        screen.form.resize(1300, 800);
        QCOMPARE(screen.grid->geometry(), QRect(16, 16, 580 + 516, 256 + 296));
        QCOMPARE(screen.child<GlintButton>("cmdQuit")->pos(), QPoint(608 + 516, 440 + 296));
        QCOMPARE(screen.child<GlintButton>("cmdHelp")->pos(), QPoint(608 + 516, 224));
        QCOMPARE(screen.form.minimumSize(), QSize(784, 504));
    }

    void showsWhatCanBeDone() {
        LobbyScreen screen{record("Ann")};
        const auto* const rematch = screen.child<GlintButton>("cmdRematch");
        QVERIFY(screen.child<GlintButton>("cmdModify")->isEnabled());
        QVERIFY(!rematch->isVisible());
        screen.boxes.answers = {BoxAnswer::Yes, BoxAnswer::Ok};
        screen.press(screen.grid, Qt::Key_Delete);
        for (const char* name : {"cmdModify", "cmdDelete"})
            QVERIFY(!screen.child<GlintButton>(name)->isEnabled());
        screen.child<QRadioButton>("optRounds(2)")->setFocus();
        for (const char* next : {"optFormFade(2)", "cmdQuit", "grid"}) {
            QTest::keyClick(screen.form.focusWidget(), Qt::Key_Tab);
            QCOMPARE(screen.form.focusWidget()->objectName(), QString{next});
        }
    }

    void leavesOnlyWhenConfirmed() {
        LobbyScreen screen{record("Ann")};
        QSignalSpy left{&screen.form, &frmGetPlayers::programLeft};
        screen.boxes.answers = {BoxAnswer::No, BoxAnswer::Yes};
        screen.form.close();
        QVERIFY(screen.form.isVisible());
        QTest::keyClick(&screen.form, Qt::Key_Escape);
        QCOMPARE(left.count(), 1);
        QVERIFY(!screen.form.isVisible());
    }

    void actsOnNothingBehindAModalWindow() {
        const QtModalGuard guard;
        LobbyScreen screen{record("Ann") + record("Bob")};
        QSignalSpy help{&screen.form, &frmGetPlayers::helpWanted};
        auto* const cmdHelp = screen.child<GlintButton>("cmdHelp");
        const auto useScreen = [&] {
            QTest::keyClick(screen.grid, Qt::Key_Down);
            // As the toolkit sends them while it takes the screen for the active window.
            for (auto* shortcut : screen.form.findChildren<QShortcut*>()) {
                QT_IGNORE_DEPRECATIONS(QShortcutEvent event(shortcut->key(), shortcut->id());)
                QCoreApplication::sendEvent(shortcut, &event);
            }
            screen.clickFirstRowTwice();
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
        screen.form.activateWindow();  // as a click on it does on some desktops
        QTRY_COMPARE(activated.count(), 2);
        QVERIFY(modal.isActiveWindow());
        QCOMPARE(screen.log, Log{});
        QCOMPARE(help.count(), 0);
        QCOMPARE(screen.chosen(), ""s);
        QCOMPARE(screen.grid->currentIndex().row(), 0);
        QTest::keyClick(&entry, Qt::Key_O);
        for (const auto key : {Qt::Key_Down, Qt::Key_Return})
            QTest::keyClick(entry.completer()->popup(), key);
        QCOMPARE(entry.text(), QStringLiteral("one"));
        modal.close();
        QTest::mouseClick(cmdHelp, Qt::LeftButton);
        screen.clickFirstRowTwice();
        QCOMPARE(help.count(), 1);
        QCOMPARE(screen.chosen(), "Ann"s);
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
        world.shared.SkillLevel = 6;
        QCOMPARE(answer(Qt::Key_Return), 5);  // where the focus is at first
        QCOMPARE(answer(Qt::Key_G, Qt::AltModifier), 4);
    }
};

}  // namespace skylob::test

int frmGetPlayersTest_main(int argc, char** argv) {
    return skylob::test::runTest<skylob::test::frmGetPlayersTest>(argc, argv);
}
#include "frmGetPlayersTest.moc"
