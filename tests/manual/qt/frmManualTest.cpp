#include <QActionGroup>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QTextEdit>

#include "base/NullPorts.h"
#include "manual/qt/frmManual.h"
#include "screen/qt/QtLinkLabel.h"
#include "tests/support/Fakes.h"

using namespace skylob;

class frmManualTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        for (const int number : {1000, 1100, 1200, 1300})
            m_strings.add(number, "<b>Text " + std::to_string(number) + "</b>\n\n&amp;\n");
    }

    void showsOneTopicAtATime() {
        frmManual manual{m_shared, {m_strings, m_settings, m_links, m_boxes, m_shapes}};
        manual.show();
        QVERIFY(QTest::qWaitForWindowActive(&manual));
        QCOMPARE(shownBy(manual), "Program Overview|<b>Text 1000</b>\n\n&amp;|1 Program &Overview");
        const auto choose = [&manual](Qt::Key key) {
            QTest::keyClick(&manual, Qt::Key_F1);
            QTest::keyClick(manual.findChild<QMenu*>(), key);
            return shownBy(manual);
        };
        QCOMPARE(choose(Qt::Key_S), "Strategy|<b>Text 1300</b>\n\n&amp;|4 &Strategy");
        QCOMPARE(choose(Qt::Key_P), "The Player List|<b>Text 1100</b>\n\n&amp;|2 The &Player List");
        QCOMPARE(choose(Qt::Key_R), "Rules of a Game|<b>Text 1200</b>\n\n&amp;|3 &Rules of a Game");
        QTest::keyClick(manual.findChild<QtLinkLabel*>(), Qt::Key_Space);
        QCOMPARE(m_links.targets, std::vector<std::string>{"mailto:skylob@example.org"});
    }

  private:
    static QString shownBy(const frmManual& manual) {
        QString shown;
        for (const QLabel* label : manual.findChildren<QLabel*>())
            if (label->property("role") == "topic") shown += label->text();
        shown += "|" + manual.findChild<QTextEdit*>()->toPlainText();
        const QList<QAction*> items = manual.findChild<QMenu*>()->actions();
        for (int i = 0; i < items.size(); ++i)
            if (items[i]->isChecked()) shown += QString{"|%1 %2"}.arg(i + 1).arg(items[i]->text());
        return shown;
    }

    test::Log m_log;
    basSkylob m_shared;
    StringTable m_strings;
    MemorySettings m_settings;
    test::RecordingLinks m_links;
    test::QueuedBoxes m_boxes{m_log};
    const QtShapes m_shapes{programDrawings()};
};

QTEST_MAIN(frmManualTest)
#include "frmManualTest.moc"
