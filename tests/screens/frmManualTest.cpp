#include <QActionGroup>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <QTextEdit>

#include "app/QtLinkLabel.h"
#include "app/frmManual.h"
#include "battle/HeadlessBattle.h"
#include "tests/support/Fakes.h"

using namespace skylob;

namespace {

class RecordingLinks : public LinkOpener {
  public:
    bool open(const std::string& target) override {
        targets.push_back(target);
        return true;
    }
    std::vector<std::string> targets;
};

}  // namespace

class frmManualTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        for (const int number : {1000, 1100, 1200, 1300})
            m_strings.add(number, "Text " + std::to_string(number) + "\n\n<b>&amp;\n");
    }

    void showsOneTopicAtATime() {
        frmManual manual{m_shared, {m_strings, m_settings, m_links, m_boxes, m_shapes}};
        manual.show();
        QVERIFY(QTest::qWaitForWindowActive(&manual));
        QCOMPARE(shownBy(manual), "Program Overview|Text 1000\n\n<b>&amp;|Program &Overview");
        const auto choose = [&manual](Qt::Key key) {
            QTest::keyClick(&manual, Qt::Key_F1);
            QTest::keyClick(manual.findChild<QMenu*>(), key);
            return shownBy(manual);
        };
        QCOMPARE(choose(Qt::Key_S), "Strategy|Text 1300\n\n<b>&amp;|&Strategy");
        QCOMPARE(choose(Qt::Key_P), "The Player List|Text 1100\n\n<b>&amp;|The &Player List");
        QCOMPARE(choose(Qt::Key_R), "Rules of a Game|Text 1200\n\n<b>&amp;|&Rules of a Game");
        QTest::keyClick(manual.findChild<QtLinkLabel*>(), Qt::Key_Space);
        QCOMPARE(m_links.targets, std::vector<std::string>{"mailto:skylob@example.org"});
    }

  private:
    static QString shownBy(const frmManual& manual) {
        QString shown;
        for (const QLabel* label : manual.findChildren<QLabel*>())
            if (label->property("role") == "topic") shown += label->text();
        shown += "|" + manual.findChild<QTextEdit*>()->toPlainText();
        for (const QAction* item : manual.findChild<QMenu*>()->actions())
            if (item->isChecked()) shown += "|" + item->text();
        return shown;
    }

    test::Log m_log;
    basSkylob m_shared;
    StringTable m_strings;
    MemorySettings m_settings;
    RecordingLinks m_links;
    test::QueuedBoxes m_boxes{m_log};
    const QtShapes m_shapes{programDrawings()};
};

QTEST_MAIN(frmManualTest)
#include "frmManualTest.moc"
