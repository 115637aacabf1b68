// Plays set after set and opens the manual again and again in one process, which must not grow by
// that:
//   GrowthTest [SETS [MANUALS [BYTES]]]
// Prints how much is allocated; BYTES are lost on purpose with each set, to see that it would be
// noticed.

#include <malloc.h>
#include <time.h>

#include <QPixmapCache>
#include <QPointer>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "app/qt/Application.h"
#include "controls/qt/GlintButton.h"
#include "platform/qt/QtWindowStore.h"
#include "tests/support/PlayersRig.h"

namespace skylob::test {

/// Caches are full after so many; afterwards a set or a manual may add no more than kMostBytes.
constexpr int kWarmUp = 5;
constexpr double kMostBytes = 8192;

/// Null when there is none.
static QWidget* shown(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->objectName() == name) return window;
    return nullptr;
}

static void press(QWidget* screen, const char* button) {
    QTest::mouseClick(screen->findChild<GlintButton*>(button), Qt::LeftButton);
}

/// Answers every modal window, also those that an answer brings up.
static void answerAll() {
    QTimer::singleShot(1, qApp, answerAll);
    QWidget* const modal = QApplication::activeModalWidget();
    if (!modal || !modal->isActiveWindow()) return;
    if (modal->findChild<GlintButton*>("cmdOkay")) return press(modal, "cmdOkay");
    QTest::keyClick(modal, Qt::Key_Return);
}

static QWidget* await(const char* name) {
    if (!QTest::qWaitFor([name] { return shown(name) != nullptr; }, 60'000))
        qFatal("%s does not come", name);
    return shown(name);
}

/// Straight up, and not far.
static void aim(const QWidget& battle) {
    for (const char* bar : {"scrollAngle(1)", "scrollAngle(2)"})
        battle.findChild<QScrollBar*>(bar)->setValue(90);
    for (const char* bar : {"scrollSpeed(1)", "scrollSpeed(2)"})
        battle.findChild<QScrollBar*>(bar)->setValue(0);
}

/// Whoever shoots is hit, until the set is over and recorded.
static void playSet() {
    auto* const grid = await("frmGetPlayers")->findChild<QTableView*>("grid");
    if (!QTest::qWaitFor([grid] { return grid->model()->rowCount() == 2; })) qFatal("no players");
    for (const int row : {0, 1}) {
        grid->selectRow(row);
        QTest::keyClick(grid, Qt::Key_Return);
    }
    QWidget* const battle = await("frmPlayGame");
    while (shown("frmPlayGame")) {
        if (battle->findChild<GlintButton*>("cmdShoot")->isEnabled()) {
            aim(*battle);
            press(battle, "cmdShoot");
        }
        QTest::qWait(1);
    }
}

static void openManual() {
    press(await("frmGetPlayers"), "cmdHelp");
    const QPointer<QWidget> manual = await("frmManual");
    press(manual, "cmdReturn");
    if (!QTest::qWaitFor([&manual] { return manual.isNull(); })) qFatal("the manual stays");
}

static double bytesInUse() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QPixmapCache::clear();  // fills up to its ten megabytes
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

static long residentKiB() {
    long pages = 0;
    std::ifstream{"/proc/self/statm"}.ignore(64, ' ') >> pages;
    return pages * 4;
}

/// Whether what is done again and again adds no memory to what it has after the first times.
static bool staysAsLarge(const char* what, int times, const std::function<void()>& act) {
    if (times == 0) return true;
    for (int i = 0; i < kWarmUp; ++i) act();
    const double before = bytesInUse();
    const long residentBefore = residentKiB();
    for (int i = 0; i < times; ++i) act();
    const double each = (bytesInUse() - before) / times;
    std::printf("%-8s %5d  %8.0f KiB before  %+8.0f bytes each  resident %ld -> %ld KiB\n", what,
                times, before / 1024, each, residentBefore, residentKiB());
    std::fflush(stdout);
    return each < kMostBytes;
}

static int run(int sets, int manuals, std::size_t lost) {
    answerAll();
    press(await("frmTitlePage"), "cmdContinue");
    std::vector<std::string> hoard;
    const bool fewSets = staysAsLarge("sets", sets, [&hoard, lost] {
        playSet();
        hoard.emplace_back(lost, ' ');
    });
    const bool fewManuals = staysAsLarge("manuals", manuals, openManual);
    return fewSets && fewManuals ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace skylob::test

/// In place of the system's: leaves out the seconds for which a battle holds its breath.
extern "C" int nanosleep(const timespec* time, timespec* left) {
    return time->tv_sec > 0 ? 0 : clock_nanosleep(CLOCK_REALTIME, 0, time, left);
}

int main(int argc, char** argv) {
    const auto number = [&](int at, int otherwise) {
        return argc > at ? std::atoi(argv[at]) : otherwise;
    };
    const skylob::test::TempFolder folder;
    std::filesystem::current_path(folder / "");
    std::filesystem::create_directory(folder / "Skylob");
    skylob::test::putBytes(folder / "Skylob/Skylob.ini",
                           "[Defaults]\nGameSpeed=99\nNumRounds=1\nNewUser=NoShow\nMeteorsSetting="
                           "0\nLightningSetting=0\n");
    skylob::test::putBytes(folder / "Skylob.Data",
                           skylob::test::record("Ann") + skylob::test::record("Bob"));
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, QByteArray::fromStdString(folder / ""));

    skylob::CommandLine commandLine;
    commandLine.seed = 4;
    skylob::QtWindowStore windows;
    skylob::Application application{argc, argv, commandLine, windows};
    QTimer::singleShot(0, &application, [&] {
        QCoreApplication::exit(
            skylob::test::run(number(1, 5), number(2, 10), static_cast<std::size_t>(number(3, 0))));
    });
    return application.run();
}
