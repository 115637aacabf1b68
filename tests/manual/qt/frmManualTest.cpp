#include "manual/qt/frmManual.h"

#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>

#include "base/basSkylob.h"
#include "controls/qt/GlintButton.h"
#include "look/qt/QtShapes.h"
#include "screen/qt/QtLinkLabel.h"
#include "tests/support/Fakes.h"
#include "tests/support/ScreenTest.h"

using namespace skylob;

class frmManualTest : public QObject {
    Q_OBJECT

  private slots:
    void showsOneTopicAtATime() {
        basSkylob shared;
        MemorySettings settings;
        MemoryWindows windows;
        const QtShapes shapes{programDrawings()};
        StringTable texts;
        for (const int number : {1000, 1100, 1200, 1300})
            texts.add(number, "<b>Text " + std::to_string(number) + "</b>\n\n&amp;\n");
        test::Log log;
        test::RecordingLinks links;
        test::QueuedBoxes boxes{log};
        frmManual manual{{shared, settings, shapes, windows}, texts, links, boxes};
        manual.show();
        QVERIFY(QTest::qWaitForWindowActive(&manual));
        std::string captions;
        for (const char* name : {"cmdHelpTopic", "cmdPrintHelp", "cmdReturn"})
            captions += manual.findChild<GlintButton*>(name)->state().Caption + "|";
        QCOMPARE(captions, std::string{"&Help Topics\r\n(F1)|&Print|&Return\r\n(Esc)|"});
        QCOMPARE(shownBy(manual), "Program Overview|<b>Text 1000</b>\n\n&amp;|1 Program &Overview");
        const auto choose = [&manual](Qt::Key key) {
            QTest::keyClick(&manual, Qt::Key_F1);
            QTest::keyClick(manual.findChild<QMenu*>("menuHelpTopic"), key);
            return shownBy(manual);
        };
        QCOMPARE(choose(Qt::Key_S), "Strategy|<b>Text 1300</b>\n\n&amp;|4 &Strategy");
        QCOMPARE(choose(Qt::Key_P), "The Player List|<b>Text 1100</b>\n\n&amp;|2 The &Player List");
        QCOMPARE(choose(Qt::Key_R), "Rules of a Game|<b>Text 1200</b>\n\n&amp;|3 &Rules of a Game");
        QTest::keyClick(manual.findChild<QtLinkLabel*>("labelContact"), Qt::Key_Space);
        QCOMPARE(links.targets, std::vector<std::string>{"mailto:skylob@example.org"});
        QSignalSpy returned{&manual, &frmManual::returned};
        QTest::keyClick(manual.findChild<QTextEdit*>("txtManual"), Qt::Key_Return);
        QCOMPARE(returned.count(), 1);
    }

  private:
    static QString shownBy(const frmManual& manual) {
        QString shown = manual.findChild<QLabel*>("labelHelpTopic")->text() + "|" +
                        manual.findChild<QTextEdit*>("txtManual")->toPlainText();
        const QList<QAction*> items = manual.findChild<QMenu*>("menuHelpTopic")->actions();
        for (int i = 0; i < items.size(); ++i)
            if (items[i]->isChecked()) shown += QString{"|%1 %2"}.arg(i + 1).arg(items[i]->text());
        return shown;
    }
};

int frmManualTest_main(int argc, char** argv) {
    return skylob::test::runTest<frmManualTest>(argc, argv);
}
#include "frmManualTest.moc"
