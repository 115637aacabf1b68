// Usage: skylob_contrast [--failures] [FOLDER]
// Brings up every screen in every state and prints how well texts and marks are told from their
// ground, or only what is below its limit. Pictures of the screens come into the folder. Status 1
// if anything is below its limit.

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QToolTip>
#include <cstdlib>

#include "app/qt/QtProgramTexts.h"
#include "controls/qt/GlintButton.h"
#include "fieldParts.h"
#include "manual/qt/frmManual.h"
#include "players/qt/frmGetPlayers.h"
#include "players/qt/frmGetSkillLevel.h"
#include "players/qt/frmSummary.h"
#include "screen/qt/QtBox.h"
#include "tests/support/BattleScreen.h"
#include "tests/support/PlayersRig.h"
#include "title/qt/frmNewUser.h"
#include "title/qt/frmTitlePage.h"

namespace skylob {

namespace {

/// What the screens share; the players have played.
struct World : test::PlayersRig {
    World() {
        put(test::record("Ann", 14, 11, 46, 1) + test::record("Bob", 9, 6, 41, 2) + cyd);
        finishSet({"Ann", "Bob"}, {3, 2}, {120, 80});
    }

    const QtShapes shapes{programDrawings()};
    const StringTable texts = programTexts();
    MemoryWindows windows;
    const QtScreenPorts ports{shared, settings, shapes, windows};
};

QWidget& shown(QWidget& window) {
    window.show();
    window.activateWindow();
    (void)QTest::qWaitForWindowActive(&window);
    QCoreApplication::processEvents();
    return window;
}

void visitTitle(Tour& tour) {
    World world;
    frmTitlePage title{world.ports, world.clock, world.sounds, world.links, world.boxes, 100};
    tour.visit(shown(title), QStringLiteral("title"));
    frmNewUser welcome{world.ports, world.texts.text(kOverviewText)};
    tour.visit(shown(welcome), QStringLiteral("welcome"));
}

void visitPlayers(Tour& tour) {
    World world;
    const QString place = QStringLiteral("players");
    frmGetPlayers list{world.ports,
                       {world.file, world.clock, world.boxes, world.sounds, world.links}};
    tour.visit(shown(list), place);
    auto* const grid = list.findChild<QTableView*>(QStringLiteral("grid"));
    QTest::keyClick(grid, Qt::Key_Return);
    tour.visit(list, place + QStringLiteral(", one chosen"));
    QTest::keyClick(grid, Qt::Key_Down);
    QToolTip::showText(list.pos(), QStringLiteral("A hint for the hand"), &list);
    for (QWidget* tip : QApplication::topLevelWidgets())
        if (tip->inherits("QTipLabel")) tour.look(*tip, place, QStringLiteral("tool tip"));
    frmGetSkillLevel level{world.ports};
    tour.visit(shown(level), QStringLiteral("skill level"));
}

void visitSummaries(Tour& tour) {
    World world;
    test::ScriptedRandom random{{}, 0};
    for (const auto kind : {SummaryKind::Round, SummaryKind::Set}) {
        frmSummary summary{
            world.ports,
            kind,
            {world.clock, random, world.sounds, world.boxes, world.texts, world.file}};
        tour.visit(shown(summary), kind == SummaryKind::Round ? QStringLiteral("round summary")
                                                              : QStringLiteral("set summary"));
    }
}

void visitManual(Tour& tour) {
    World world;
    const QString place = QStringLiteral("manual");
    frmManual manual{world.ports, world.texts, world.links, world.boxes};
    tour.visit(shown(manual), place);
    manual.findChild<QTextEdit*>()->selectAll();
    tour.look(manual, place, QStringLiteral("all selected"));
    auto* const menu = manual.findChild<QMenu*>(QStringLiteral("menuHelpTopic"));
    menu->popup(manual.pos());
    menu->setActiveAction(menu->actions().at(1));
    tour.look(*menu, place, QStringLiteral("menu"));
    menu->close();
}

void visitBoxes(Tour& tour) {
    World world;
    QtBox question{QStringLiteral("Confirm"), QStringLiteral("Are you sure?"), world.shapes};
    question.setIcon(QStringLiteral("question"));
    question.addButtons({QtBox::Answer::Yes, QtBox::Answer::No}, QtBox::Answer::No);
    tour.visit(shown(question), QStringLiteral("message box"));
    QtBox input{QStringLiteral("Add"), QStringLiteral("Name of the player:"), world.shapes};
    input.addEntry(QStringLiteral("Somebody"))->selectAll();
    input.addButtons({QtBox::Answer::Ok, QtBox::Answer::Cancel}, QtBox::Answer::Ok);
    tour.visit(shown(input), QStringLiteral("input box"));
    input.findChild<QLineEdit*>()->deselect();
    tour.look(input, QStringLiteral("input box"), QStringLiteral("none selected"));
}

void visitStorm(Tour& tour, test::Screen& screen, const QString& place) {
    screen.pacer.inStorm = [&](std::int32_t) {
        tour.look(*screen.form, place, QStringLiteral("in a storm"), Tour::Limits::None);
    };
    screen.clock.time += std::chrono::hours{1};
    screen.random.script({0});
    QMetaObject::invokeMethod(screen.form->findChild<QTimer*>(QStringLiteral("timerLightning")),
                              "timeout");
    screen.pacer.inStorm = {};
}

void visitBattles(Tour& tour) {
    for (const int size : {1, 2, 3}) {
        const QString place = QStringLiteral("battle ") +
                              QString{QStringLiteral("small normal large")}.split(u' ')[size - 1];
        {
            test::Screen first{size, "Ann", "Bob", test::Screen::NewUser};
            tour.look(*first.form, place, QStringLiteral("hints"));
        }
        test::Screen screen{size, "Ann", "Computer"};
        tour.visit(*screen.form, place);
        QTest::keyClicks(screen.bar("scrollSpeed(1)"), QStringLiteral("44"));
        tour.look(*screen.form, place, QStringLiteral("typing"));
        test::Screen two{size};
        playAndLook(tour, two, place);
        visitStorm(tour, two, place);
    }
}

}  // namespace

}  // namespace skylob

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application{argc, argv};
    QStringList words = QApplication::arguments().mid(1);
    const bool onlyFailures = words.removeAll(QStringLiteral("--failures")) > 0;
    const QString folder = words.value(0);
    if (!folder.isEmpty()) QDir{}.mkpath(folder);
    skylob::ContrastTable table;
    skylob::Tour tour{table, folder};
    skylob::visitTitle(tour);
    skylob::visitPlayers(tour);
    skylob::visitSummaries(tour);
    skylob::visitManual(tour);
    skylob::visitBoxes(tour);
    skylob::visitBattles(tour);
    return table.print(onlyFailures) ? EXIT_SUCCESS : EXIT_FAILURE;
}
