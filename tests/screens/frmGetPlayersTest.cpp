#include "players/frmGetPlayers.h"

#include <QAbstractItemModel>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QtTest>

#include "app/Fade.h"
#include "controls/GlintButton.h"
#include "players/frmGetSkillLevel.h"
#include "players/frmSummary.h"
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
};

struct LobbyScreen : World {
    explicit LobbyScreen(const std::string& list) {
        put(list);
        form = std::make_unique<frmGetPlayers>(
            shared, frmGetPlayersPorts{file, clock, boxes, settings, sounds, links, shapes,
                                       [this] { ++skillQuestions; }});
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
        QVERIFY(option("Normal")->isChecked() && option("10")->isChecked());
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
        const frmSummary form{world.shared,
                              SummaryKind::Round,
                              {world.clock, random, world.sounds, world.boxes, strings, world.file},
                              world.settings,
                              world.shapes};
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

    void takesTheSkillLevel() {
        World world;
        const auto answer = [&world](int key, Qt::KeyboardModifiers modifiers = {}) {
            frmGetSkillLevel form{world.shared, world.settings, world.shapes};
            QTimer::singleShot(0, &form, [&] {
                (void)QTest::qWaitForWindowActive(&form);
                QTest::keyClick(form.focusWidget(), Qt::Key(key), modifiers);
            });
            form.exec();
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
