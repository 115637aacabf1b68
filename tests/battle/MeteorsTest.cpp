#include "base/SeededRandom.h"
#include "battle/Meteors.h"

#include <gtest/gtest.h>

#include "tests/support/SkyRig.h"

namespace skylob::test {

/// The r that draws a start column.
static double from(int column) {
    return (column + 500.5) / 2001;
}

TEST(MeteorPath, FallsByItsSlopeUntilItHitsOrLeaves) {
    Battlefield field;
    field.TerrainHeight.fill(100);
    field.TerrainHeight[2] = 400;
    // Peak; r for column, height, direction, slope, steps, and the rest; points, end, hit, draws.
    const std::tuple<int, std::deque<double>, double, std::size_t, FieldPoint, bool, int> rows[] = {
        // 2 a step from 900 to 114, the first height within 15 of the ground.
        {550, {from(500), 0}, 0, 392, {893, 114}, true, 397},
        {950, {from(500), 0, 0, 0, .9}, 0, 417, {918, 115}, true, 422},
        {550, {from(500), .999}, .9, 485, {14, 999}, false, 490},
        {550, {from(500), 0, .4, .9}, 0, 485, {986, 414}, false, 490},
        // Near the sides the direction is not drawn.
        {550, {from(99), 0}, .9, 886, {986, 900}, false, 890},
        {550, {from(901), 0}, .9, 886, {14, 900}, false, 890},
        {550, {from(100), 0}, .9, 85, {14, 900}, false, 90},
        {550, {from(900), 0, 0}, .9, 85, {986, 900}, false, 90},
        // Those from the sides, and their neighbours, are gone at once, even below ground.
        {550, {0, 0}, 0, 0, {2, 118}, false, 4},
        {550, {from(1), .9999}, .9, 0, {2, 980}, false, 4},
        {550, {.9999, 0}, 0, 0, {998, 118}, false, 4},
        {550, {from(13), 0}, .9, 0, {14, 900}, false, 4},
        {550, {from(14), 0}, .9, 971, {986, 900}, false, 975}};
    for (const auto& [peak, script, rest, points, end, hits, draws] : rows) {
        field.PeakX = peak;
        ScriptedRandom random{script, rest};
        const MeteorPath path = meteorPath(field, random);
        EXPECT_EQ((std::tuple{path.points.size(), path.hitsGround, random.draws()}),
                  (std::tuple{points, hits, draws}));
        EXPECT_EQ(path.end, end);
    }
}

TEST(MeteorPath, KeepsItsBoundsTenThousandTimes) {
    SeededRandom random{2026};
    Battlefield field;
    int hits = 0;
    for (int meteor = 0; meteor < 10'000; ++meteor) {
        if (meteor % 100 == 0) generateBattlefield(field, random, 1, 10);
        MeteorPath path = meteorPath(field, random);
        ASSERT_LE(path.points.size(), 971u);
        path.points.push_back(path.end);
        for (std::size_t i = 1; i < path.points.size(); ++i) {
            const FieldPoint &at = path.points[i - 1], &next = path.points[i];
            ASSERT_EQ(at.x, std::clamp(at.x, 15, 985));
            ASSERT_EQ(at.y, std::clamp(at.y, field.heightAt(at.x) + 16, 999));
            ASSERT_EQ(std::abs(next.x - at.x), 1);
            ASSERT_EQ(at.y, std::clamp(at.y, next.y, next.y + 2));
        }
        hits += path.hitsGround;
    }
    EXPECT_GT(hits, 1000);
}

struct Falling : testing::Test, SkyRig {};

TEST_F(Falling, BeginsOnceInTwentyTicksAtThePaceOfTheGameSpeed) {
    begin(kMeteor, {.05});
    EXPECT_EQ(yields(), 0);
    begin(kMeteor, {.0499});  // level at 950 from column 500 to 15, as the rig's chance is
    EXPECT_EQ(yields(), 485);
    EXPECT_EQ(pacer.counts, std::vector<std::int32_t>(485, 15'000));
    EXPECT_EQ(meteorDelayCount(1), 1'485'000);
    EXPECT_EQ(meteorDelayCount(2'000'000'000), 0);
    EXPECT_EQ(meteorDelayCount(-2'000'000'000), 2'147'483'647);
}

TEST(Meteors, FlickerAndPutTheSkyBack) {
    BareSky rig;
    rig.picture.resize(500, 300, 2);  // as on a display of twice the density
    drawBattlefield(rig.state.field, rig.picture, 2);
    rig.picture.setPassingPoint(450, 950, kCyan);  // of a shell's trail
    rig.picture.setPassingPoint(449, 951, kRed);
    const auto before = pixelsOf(rig.picture);
    const long yellowBefore = yellowPixels(rig.picture);
    basSkylob shared;
    shared.GameSpeed = 99;
    Meteors meteors{rig.sky, shared};
    rig.state.penWidth = 2;
    // The path, then two wide points and narrow ones from there on.
    std::deque<double> script(4 + 486, .5);
    script.insert(script.end(), {.45, .5, .4999});
    rig.random.script(script);
    std::vector<long> yellow;
    rig.view.onShowField = [&] {
        yellow.push_back(yellowPixels(rig.picture) - yellowBefore);
        if (yellow.size() == 50) shared.GameSpeed = 90;
    };
    meteors.fly();
    // Dots of 6 and 4 device pixels across; the last picture is without any.
    ASSERT_EQ(yellow.size(), 486u);
    EXPECT_EQ(std::vector(yellow.begin(), yellow.begin() + 4), (std::vector<long>{32, 32, 12, 12}));
    EXPECT_TRUE(pixelsOf(rig.picture) == before);
    EXPECT_EQ(rig.state.penWidth, 1);
    EXPECT_EQ(rig.pacer.counts.at(49), 15'000);
    EXPECT_EQ(rig.pacer.counts.at(50), 150'000);
}

TEST_F(Falling, EndsInAnExplosionWithoutASound) {
    options().chkSound_Click(true);
    passTime();
    // From column 600 at 900 to the left, over the mountain, 2 a step: 120 in column 210, where
    // the ground is 105 high.
    std::deque<double> script(5 + 390, 0.0);
    script[1] = from(600);
    script[3] = .5;
    std::vector<Colour> impact;
    view.onShowField = [&] { impact.push_back(picture().pixel(210, 120)); };
    begin(kMeteor, script);
    EXPECT_EQ(pacer.counts, std::vector<std::int32_t>(10, 1));  // the explosion's
    EXPECT_EQ(yields(), 389);
    EXPECT_EQ(impact.at(391), kWhite);
    EXPECT_EQ(impact.back(), kBlack);
    EXPECT_EQ(state().MenLeft, (PerSide<int>{100, 100}));
    EXPECT_EQ(events(), Log{});
    passTime();
    atYield(9, [&] { options().chkMeteors_Click(false); });
    begin(kMeteor, script);
    EXPECT_EQ(pacer.counts.size(), 9u);  // interrupted, it does not explode
}

TEST_F(Falling, HoldsTheLightningTimerIfItsBoxIsTicked) {
    for (const bool lightning : {true, false}) {
        options().chkLightning_Click(lightning);
        passTime();
        view.onShowField = [&] { EXPECT_EQ(timers(), "M"); };
        begin(kMeteor);
        view.onShowField = {};
        EXPECT_EQ(timers(), lightning ? "ML" : "M");
    }
}

}  // namespace skylob::test
