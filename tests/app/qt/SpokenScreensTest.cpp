// What a blind player finds on every screen.

#include <QMenu>
#include <QTest>

#include "battle/qt/QtMenGauge.h"
#include "controls/qt/GlintButtonAccessible.h"
#include "manual/qt/frmManual.h"
#include "players/qt/QtPlayerGrid.h"
#include "players/qt/frmGetPlayers.h"
#include "players/qt/frmGetSkillLevel.h"
#include "players/qt/frmSummary.h"
#include "screen/qt/QtBox.h"
#include "screen/qt/QtLinkLabel.h"
#include "screen/qt/QtSpokenControls.h"
#include "tests/support/BattleScreen.h"
#include "tests/support/PlayersRig.h"
#include "tests/support/ScreenTest.h"
#include "tests/support/Spoken.h"
#include "title/qt/frmNewUser.h"
#include "title/qt/frmTitlePage.h"

namespace skylob::test {

struct World : PlayersRig {
    World() {
        put(record("Ann", 14, 11, 46, 1) + record("<b>Bo</b> & Co %1", 1, 0, 0, 0));
        for (int remark = 2000; remark < 2800; ++remark) texts.add(remark, "Not bad.");
        for (const int number : {1000, 1100, 1200, 1300}) texts.add(number, "One.\n\nTwo.");
        clock.time = std::chrono::local_days{std::chrono::year{2026} / 11 / 22};
    }
    const QtShapes shapes{programDrawings()};
    MemoryWindows windows;
    StringTable texts;
    ScriptedRandom random{{}, 0.0};
    const QtScreenPorts ports{shared, settings, shapes, windows};
};

class SpokenScreensTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        GlintButtonAccessible::install();
        QtLinkLabel::installAccessible();
        QtScreen::installAccessible();
        installSpokenControls();
        QtMenGauge::installAccessible();
        QtPlayerGrid::installAccessible();
    }

    void tellsTitleAndWelcome() {
        World of;
        frmTitlePage title{of.ports, of.clock, of.sounds, of.links, of.boxes, 100};
        compare("title", title);
        QTest::keyClick(&title, Qt::Key_Return);
        QVERIFY(title.isHidden());
        QCOMPARE(of.log, Log{});  // not even in the first second of a minute
        compare("welcome", frmNewUser{of.ports, "A game."});
    }

    void tellsThePlayersScreens() {
        World of;
        frmGetPlayers list{of.ports, {of.file, of.clock, of.boxes, of.sounds, of.links}};
        compare("player-list", list);
        auto* const players =
            QAccessible::queryAccessibleInterface(list.findChild<QtPlayerGrid*>());
        act(*players->child(0), QAccessibleActionInterface::pressAction());
        compare("player-list-chosen", list);
        compare("skill-level", frmGetSkillLevel{of.ports});
        of.finishSet({"Ann", "Computer"}, {3, 2}, {310, 250});
        of.shared.DirectHit = true;
        for (const auto& [name, kind] :
             {std::pair{"summary-round", SummaryKind::Round}, {"summary-set", SummaryKind::Set}})
            compare(
                name,
                frmSummary{
                    of.ports, kind, {of.clock, of.random, of.sounds, of.boxes, of.texts, of.file}});
    }

    void tellsManualAndBoxes() {
        World of;
        frmManual manual{of.ports, of.texts, of.links, of.boxes};
        compare("manual", manual);
        auto* const menu = manual.findChild<QMenu*>();
        menu->popup({0, 0});
        compareSpoken("manual-menu", spoken(QAccessible::queryAccessibleInterface(menu)));
        QtBox question{"Quit?", "Really?\n\nThe set is lost!", of.shapes};
        question.setIcon("question");
        QtBox entry{"Add a Player", "The new\nname:", of.shapes};
        entry.addEntry("Cyd");
        for (QtBox* box : {&question, &entry})
            box->addButtons({QtBox::Answer::Yes, QtBox::Answer::No}, QtBox::Answer::No);
        compare("box-question", question);
        compare("box-entry", entry);
    }

    void tellsTheBattle() {
        for (const int size : {1, 2}) {
            Screen screen{size, "Ann", "Computer"};
            screen.random.script({0});
            act(*QAccessible::queryAccessibleInterface(screen.box("chkWind")),
                QAccessibleActionInterface::toggleAction());
            compare(size == 1 ? "battle-small" : "battle", *screen.form);
        }
    }

  private:
    /// Does what a reader's user wants of a control that tells of its key for it, if it has one.
    static void act(QAccessibleInterface& on, const QString& action) {
        QAccessibleActionInterface* const actions = on.actionInterface();
        const QString key = on.text(QAccessible::Accelerator);
        QCOMPARE(actions->keyBindingsForAction(action), QStringList(key.isEmpty() ? 0 : 1, key));
        actions->doAction(action);
    }

    static void compare(const char* name, QWidget&& window) { compare(name, window); }
    static void compare(const char* name, QWidget& window) {
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QCoreApplication::processEvents();
        compareSpoken(name, spoken(QAccessible::queryAccessibleInterface(&window)));
    }
};

}  // namespace skylob::test

int SpokenScreensTest_main(int argc, char** argv) {
    return skylob::test::runTest<skylob::test::SpokenScreensTest>(argc, argv);
}
#include "SpokenScreensTest.moc"
