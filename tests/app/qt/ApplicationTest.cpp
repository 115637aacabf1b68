// The program itself, on two displays side by side.

#include "app/qt/Application.h"

#include <QCheckBox>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "controls/qt/GlintButton.h"
#include "platform/qt/QtWindowStore.h"
#include "tests/support/PlayersRig.h"

namespace skylob::test {

class ApplicationTest : public QObject {
    Q_OBJECT

  private slots:
    void bringsEachScreenOnWhereTheOneBeforeItIs() {
        QWidget* const title = shown("frmTitlePage");
        QCOMPARE(title->pos(), QPoint(1400 + 380, 230));  // the pointer's display
        move(title, {100, 100});
        onceModal([title](QWidget* welcome) {
            checkAbove(welcome, title, {120, 96});
            press(welcome, "cmdContinue");
        });
        press(title, "cmdContinue");

        QWidget* const list = shown("frmGetPlayers");
        QCOMPARE(list->pos(), QPoint(28, 68));
        move(list, {2800 - 788, 900 - 508});  // the right display's lower right corner
        auto* const grid = list->findChild<QTableView*>("grid");
        QTRY_COMPARE(grid->model()->rowCount(), 1);
        QTest::keyClick(grid, Qt::Key_Return);
        onceModal([list](QWidget* level) {
            checkAbove(level, list, {1400 + 460, 346});
            press(list, "cmdHelp");
            QVERIFY(!shown("frmManual"));
            press(level, "cmdSkillLevel(6)");
        });
        list->findChild<QCheckBox*>("chkComputer")->click();

        QWidget* const battle = shown("frmPlayGame");
        QCOMPARE(battle->pos(), QPoint(2800 - 1012, 900 - 732));
        move(battle, {100, 50});
        onceModal([battle](QWidget* summary) {
            checkAbove(summary, battle, {304, 192});
            press(summary, "cmdOkay");
        });
        shootStraightUp(battle);

        onceModal([battle](QWidget* box) {
            checkAbove(box, battle, box->pos());
            const QPoint off = box->geometry().center() - battle->geometry().center();
            QVERIFY(off.manhattanLength() < 60);  // as the toolkit places boxes
            QTest::keyClick(box, Qt::Key_Y, Qt::AltModifier);
        });
        press(battle, "cmdQuit");
        QWidget* const listAgain = shown("frmGetPlayers");
        QCOMPARE(listAgain->pos(), QPoint(212, 162));
        press(listAgain, "cmdHelp");
        QCOMPARE(shown("frmManual")->pos(), QPoint(244, 144));
    }

  private:
    /// Null when there is none.
    static QWidget* shown(const char* name) {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && window->objectName() == name) return window;
        return nullptr;
    }

    /// Of a window that changes displays, newer toolkits tell the place only afterwards.
    static void move(QWidget* screen, const QPoint& place) {
        screen->move(place);
        QTRY_COMPARE(screen->pos(), place);
    }

    static void press(QWidget* screen, const char* button) {
        QTest::mouseClick(screen->findChild<GlintButton*>(button), Qt::LeftButton);
    }

    /// Runs the script when the next modal window is active. What brings it up blocks until it
    /// closes.
    static void onceModal(std::function<void(QWidget*)> script) {
        auto* timer = new QTimer{qApp};
        QObject::connect(timer, &QTimer::timeout, [timer, script = std::move(script)] {
            QWidget* const modal = QApplication::activeModalWidget();
            if (!modal || !modal->isActiveWindow()) return;
            delete timer;
            script(modal);
        });
        timer->start(1);
    }

    static void checkAbove(const QWidget* modal, const QWidget* screen, const QPoint& place) {
        QCOMPARE(modal->pos(), place);
        QCOMPARE(modal->windowHandle()->transientParent(), screen->windowHandle());
    }

    /// In the player's turn, after which the round is over.
    static void shootStraightUp(QWidget* battle) {
        QTRY_VERIFY(battle->findChild<GlintButton*>("cmdShoot")->isEnabled());
        for (const char* bar : {"scrollAngle(1)", "scrollAngle(2)"})
            battle->findChild<QScrollBar*>(bar)->setValue(90);
        press(battle, "cmdShoot");
    }
};

}  // namespace skylob::test

int ApplicationTest_main(int argc, char** argv) {
    const skylob::test::TempFolder folder;
    const auto put = [&folder](const char* name, const std::string& bytes) {
        skylob::test::putBytes(folder / name, bytes);
    };
    std::filesystem::current_path(folder / "");
    std::filesystem::create_directory(folder / "Skylob");
    put("Skylob/Skylob.ini", "[Defaults]\nGameSpeed=99\n");
    put("Skylob.Data", skylob::test::record("Ann", skylob::test::kNew));
    put("displays", R"({"screens": [{"name": "left", "width": 1400, "height": 900},
        {"name": "right", "x": 1400, "width": 1400, "height": 900}]})");
    qputenv("QT_QPA_PLATFORM",
            QByteArray::fromStdString("offscreen:configfile=" + folder / "displays"));
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, QByteArray::fromStdString(folder / ""));

    skylob::CommandLine commandLine;
    commandLine.seed = 4;
    skylob::QtWindowStore windows;
    skylob::Application application{argc, argv, commandLine, windows};
    QCursor::setPos(1500, 100);
    QTimer::singleShot(0, &application, [&] {
        skylob::test::ApplicationTest test;
        QCoreApplication::exit(QTest::qExec(&test, argc, argv));
    });
    return application.run();
}
#include "ApplicationTest.moc"
