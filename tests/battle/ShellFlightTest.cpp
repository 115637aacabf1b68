#include "battle/ShellFlight.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "battle/Explosion.h"
#include "tests/support/BattleRig.h"

namespace skylob::test {

static Battlefield flatField() {
    Battlefield field;
    field.TerrainHeight.fill(100);
    return field;
}

TEST(ShellFlight, FliesTheTabledPaths) {
    // Over flat ground of height 100; worked out by a second program without shared code.
    struct Row {
        int side, pieceX, speed, angle, wind;
        FieldPoint landing;
        int positions;
        FieldPoint tenth, fiftieth;  // 0, 0 where the flight was over by then
    };
    for (const Row& row : {
             // With the factor in double precision this one comes down in column 826.
             Row{1, 100, 344, 71, -37, {827, 97}, 164, {147, 246}, {348, 663}},
             Row{1, 100, 999, 10, 0, {1045, 215}, 20, {546, 168}, {}},
             Row{1, 100, 300, 90, -6, {63, 93}, 152, {99, 235}, {94, 603}},
             Row{1, 500, 500, 90, 17, {768, 83}, 252, {502, 325}, {517, 1093}},
             Row{2, 900, 300, 75, 0, {289, 89}, 147, {864, 230}, {703, 577}},
             Row{2, 900, 640, 75, 17, {-7, 2294}, 111, {826, 378}, {496, 1381}},
             Row{2, 100, 800, 85, 0, {0, 1145}, 29, {68, 458}, {}},
             Row{1, 700, 150, 45, 0, {996, 99}, 55, {749, 147}, {968, 124}},
         }) {
        SCOPED_TRACE(testing::Message() << row.landing.x << ", " << row.landing.y);
        const Battlefield field = flatField();
        ShellFlight flight{{row.side, row.speed, row.angle, row.pieceX, 100, row.wind}};
        std::vector<FieldPoint> path{flight.position()};
        while (isFlying(path.back(), field)) {
            flight.advance();
            path.push_back(flight.position());
        }
        EXPECT_EQ(path.back(), row.landing);
        EXPECT_EQ(path.size(), static_cast<std::size_t>(row.positions));
        EXPECT_EQ(path.at(9), row.tenth);
        EXPECT_EQ(path.size() < 50 ? FieldPoint{} : path[49], row.fiftieth);
    }
    ShellFlight flight{{2, 300, 90, 900, 100, 0}};
    for (int step = 0; step < 5; ++step) flight.advance();
    EXPECT_EQ(flight.position(), (FieldPoint{900, 180}));  // a tie: 108 + 75 - 2.5 = 180.5
}

TEST(Landing, IsDecidedByTheColumnAlone) {
    using enum Landing;
    struct Row {
        int x, shooterX, targetX;
        Landing expected;
    };
    for (const Row& row : {
             Row{4, 300, 4, OutOfBounds},   Row{5, 300, 5, DirectHit},
             Row{995, 991, 300, SelfHit},   Row{996, 996, 300, OutOfBounds},
             Row{0, 300, 700, OutOfBounds}, Row{1001, 300, 700, OutOfBounds},
             Row{304, 300, 700, SelfHit},   Row{296, 300, 700, SelfHit},
             Row{305, 300, 700, Miss},      Row{295, 300, 700, Miss},
             Row{705, 300, 700, DirectHit}, Row{695, 300, 700, DirectHit},
             Row{706, 300, 700, NearMiss},  Row{713, 300, 700, NearMiss},
             Row{687, 300, 700, NearMiss},  Row{714, 300, 700, Miss},
             Row{686, 300, 700, Miss},      Row{504, 500, 504, SelfHit},
             Row{505, 500, 505, DirectHit},
         }) {
        EXPECT_EQ(classifyLanding(row.x, row.shooterX, row.targetX), row.expected)
            << row.x << " from " << row.shooterX << " to " << row.targetX;
    }
}

TEST(NearMiss, KillsTheFewerTheFartherHalvesToEven) {
    struct Row {
        int men, distance, kills;
    };
    for (const Row& row :
         {Row{100, 6, 14}, Row{100, 7, 13}, Row{100, 13, 7}, Row{87, 9, 9}, Row{1, 6, 0},
          Row{0, 13, 0}, Row{3, 7, 0}, Row{11, 7, 2}, Row{19, 7, 2}, Row{27, 7, 4}, Row{94, 9, 10}})
        EXPECT_EQ(nearMissKills(row.men, row.distance), row.kills)
            << row.men << "/" << row.distance;
}

/// A picture with a pixel for each unit, and everything that moves on it recorded.
struct AnimatedField {
    AnimatedField() { picture.resize(1000, 1000, 1); }

    Log log;
    FieldPicture picture;
    RecordingView view{log};
    RecordingPacer pacer{log};
    FieldAnimation animation{picture, view, pacer};
};

TEST(FlyShell, ShowsAYellowShellAtEveryStepAndLeavesATrailOnDemand) {
    for (const int side : {1, 2}) {
        for (const Trail trail : {Trail::Coloured, Trail::None}) {
            AnimatedField stage;
            const FieldPoint tenth{side == 1 ? 136 : 864, 230};
            stage.picture.setPoint(tenth.x, tenth.y, kCyan);  // a star on the shell's way
            std::vector<Colour> atTenth;
            stage.view.onShowField = [&] {
                atTenth.push_back(stage.picture.pixel(tenth.x, tenth.y));
            };
            const FieldPoint landed = flyShell({side, 300, 75, side == 1 ? 100 : 900, 100, 0},
                                               flatField(), trail, stage.animation, 77);
            EXPECT_EQ(landed, (FieldPoint{side == 1 ? 711 : 289, 89}));
            EXPECT_EQ(stage.pacer.counts, std::vector<std::int32_t>(147, 77));
            EXPECT_EQ(atTenth.at(8), kCyan);
            EXPECT_EQ(atTenth.at(9), kYellow);
            const Colour left = trail == Trail::None ? kCyan : side == 1 ? kRed : kMagenta;
            EXPECT_EQ(atTenth.at(10), left);
            EXPECT_EQ(stage.picture.pixel(landed.x, landed.y), kBlack);
            stage.picture.refresh();
            EXPECT_EQ(stage.picture.pixel(tenth.x, tenth.y), kCyan);  // no trail was persistent
        }
    }
}

TEST(Explosion, GrowsInYellowAndWhiteAndLeavesABlackDot) {
    struct Row {
        Landing landing;
        std::size_t holds;
        int y;
        std::string_view sound;
    };
    for (const Row& row :
         {Row{Landing::DirectHit, 42, 516, "bullseye"}, Row{Landing::SelfHit, 42, 516, "bullseye"},
          Row{Landing::NearMiss, 10, 500, "nearmiss"}, Row{Landing::Miss, 10, 500, "explosion"}}) {
        SCOPED_TRACE(row.sound);
        AnimatedField stage;
        stage.picture.filledCircle(500, row.y, 60, kCyan);
        std::vector<Colour> centre;
        stage.view.onShowField = [&] { centre.push_back(stage.picture.pixel(500, row.y)); };
        animateExplosion({500, 500}, row.landing, stage.animation, 9);
        EXPECT_EQ(stage.pacer.counts, std::vector<std::int32_t>(row.holds, 9));
        EXPECT_EQ(centre.at(0), kYellow);
        EXPECT_EQ(centre.at(1), kWhite);
        EXPECT_EQ(centre.at(row.holds - 2), kYellow);
        EXPECT_EQ(centre.back(), kBlack);
        const int reach = row.holds == 42 ? 11 : 3;  // of a dot 23 or 7 wide
        EXPECT_EQ(stage.picture.pixel(500 + reach, row.y), kBlack);
        EXPECT_EQ(stage.picture.pixel(500 + reach + 1, row.y), kCyan);
        const auto* pixels = stage.picture.screenPixels();
        EXPECT_EQ(std::count(pixels, pixels + 1'000'000, 0xFFFFFFFFu), 0);  // no spark is left
        EXPECT_EQ(landingSound(row.landing), row.sound);
    }
    EXPECT_EQ(landingSound(Landing::OutOfBounds), "outofbounds");
}

}  // namespace skylob::test
