#include "battle/qt/frmPlayGameLayout.h"

#include <QTest>
#include <vector>

using namespace skylob;

namespace {

/// What stands on the screen itself, and what stands in its strip.
std::vector<QRect> onScreen(const frmPlayGameLayout& of) {
    std::vector<QRect> rects{of.field,    of.labelReport,      of.labelScore, of.frame[1],
                             of.cmdShoot, of.labelRoundNumber, of.cmdQuit,    of.strip};
    if (!of.oneFrameAtATime) rects.push_back(of.frame[2]);
    if (!of.gameSpeedInStrip) rects.insert(rects.end(), {of.labelGameSpeed, of.scrollGameSpeed});
    return rects;
}

std::vector<QRect> inStrip(const frmPlayGameLayout& of) {
    std::vector<QRect> rects{of.chkSound,     of.scrollVolume, of.chkTrajectory, of.chkMeteors,
                             of.chkLightning, of.chkWind,      of.chkEffects};
    if (of.gameSpeedInStrip) rects.insert(rects.end(), {of.labelGameSpeed, of.scrollGameSpeed});
    return rects;
}

void checkApart(const std::vector<QRect>& rects, const QSize& ground) {
    for (std::size_t i = 0; i < rects.size(); ++i) {
        QVERIFY(QRect({}, ground).contains(rects[i]));
        for (std::size_t j = 0; j < i; ++j) QVERIFY(!rects[i].intersects(rects[j]));
    }
}

}  // namespace

class frmPlayGameLayoutTest : public QObject {
    Q_OBJECT

  private slots:
    void growsWithTheScreen_data() {
        QTest::addColumn<int>("screenSize");
        QTest::addColumn<QSize>("screen");
        QTest::addColumn<QList<QRect>>("places");  // field, side 2, shoot, strip, effects, score
        QTest::newRow("small itself")
            << 1 << QSize{784, 570}
            << QList<QRect>{{8, 8, 768, 400},  {8, 438, 424, 88}, {440, 438, 56, 88},
                            {8, 534, 768, 28}, {644, 2, 100, 24}, {696, 411, 80, 20}};
        QTest::newRow("less than small")
            << 1 << QSize{640, 480}
            << QList<QRect>{{8, 8, 768, 400},  {8, 438, 424, 88}, {440, 438, 56, 88},
                            {8, 534, 768, 28}, {644, 2, 100, 24}, {696, 411, 80, 20}};
        QTest::newRow("wider small")
            << 1 << QSize{884, 570}
            << QList<QRect>{{8, 8, 868, 400},  {8, 438, 424, 88}, {490, 438, 56, 88},
                            {8, 534, 868, 28}, {744, 2, 100, 24}, {796, 411, 80, 20}};
        QTest::newRow("higher normal")
            << 2 << QSize{1008, 1040}
            << QList<QRect>{{12, 12, 984, 824},  {652, 872, 344, 120}, {368, 904, 176, 88},
                            {12, 1000, 984, 32}, {876, 4, 96, 24},     {896, 841, 100, 22}};
        QTest::newRow("large on a large display")
            << 3 << QSize{1920, 1080}
            << QList<QRect>{{12, 12, 1896, 896},  {1468, 944, 440, 84}, {792, 972, 228, 56},
                            {12, 1036, 1896, 32}, {1756, 4, 110, 24},   {1806, 913, 102, 22}};
    }

    void growsWithTheScreen() {
        QFETCH(int, screenSize);
        QFETCH(QSize, screen);
        QFETCH(QList<QRect>, places);
        const frmPlayGameLayout& smallest = layoutForScreenSize(screenSize);
        const frmPlayGameLayout layout = stretched(smallest, screen);
        QCOMPARE((QList<QRect>{layout.field, layout.frame[2], layout.cmdShoot, layout.strip,
                               layout.chkEffects, layout.labelScore}),
                 places);
        checkApart(onScreen(layout), screen.expandedTo(smallest.screen));
        checkApart(inStrip(layout), layout.strip.size());
    }

    void takesTheLargestLayoutThatFits() {
        const struct {
            int chosen;
            QSize room;
            int taken;
        } cases[] = {{3, {1264, 764}, 3},  {3, {1263, 764}, 2},  {3, {1264, 763}, 2},
                     {3, {1008, 727}, 1},  {2, {5000, 3000}, 2}, {2, {1007, 900}, 1},
                     {1, {5000, 3000}, 1}, {3, {640, 460}, 1},   {9, {1300, 800}, 2}};
        for (const auto& [chosen, room, taken] : cases)
            QCOMPARE(layoutForRoom(chosen, room).screen, layoutForScreenSize(taken).screen);
    }

    void widensPensWithTheField() {
        const QSize normal{984, 512};
        const struct {
            QSize field;
            qreal ratio;
            int scale;
        } cases[] = {{normal, 1, 1},      {normal, 1.25, 1},   {normal, 1.5, 2},
                     {normal, 2, 2},      {{1896, 830}, 1, 2}, {{1400, 760}, 1, 1},
                     {{1896, 830}, 2, 3}, {{1896, 600}, 1, 1}, {{2500, 512}, 1, 2},
                     {{2000, 512}, 1, 2}, {{984, 3000}, 1, 1}};
        for (const auto& [field, ratio, scale] : cases)
            QCOMPARE(dotScaleOf(normal, field, ratio), scale);
    }
};

QTEST_APPLESS_MAIN(frmPlayGameLayoutTest)
#include "frmPlayGameLayoutTest.moc"
