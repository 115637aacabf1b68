#include "battle/ShellFlight.h"

#include <gtest/gtest.h>

#include "battle/Explosion.h"
#include "tests/support/SkyRig.h"

namespace skylob::test {

const Battlefield kFlat = [] {
    Battlefield field;
    field.TerrainHeight.fill(100);
    return field;
}();

TEST(ShellFlight, FliesTheTabledPaths) {
    // Over flat ground of height 100; worked out by a second program without shared code.
    // Side, speed, angle, column, height, wind; positions, the last, tenth and fiftieth of them:
    // 0, 0 where the flight was over by then.
    const std::tuple<Launch, std::size_t, FieldPoint, FieldPoint, FieldPoint> rows[] = {
        // With the factor in double precision this one comes down in column 826.
        {{1, 344, 71, 100, 100, -37}, 164, {827, 97}, {147, 246}, {348, 663}},
        {{1, 999, 10, 100, 100, 0}, 20, {1045, 215}, {546, 168}, {}},
        {{1, 300, 90, 100, 100, -6}, 152, {63, 93}, {99, 235}, {94, 603}},
        {{1, 500, 90, 500, 100, 17}, 252, {768, 83}, {502, 325}, {517, 1093}},
        {{2, 300, 75, 900, 100, 0}, 147, {289, 89}, {864, 230}, {703, 577}},
        {{2, 640, 75, 900, 100, 17}, 111, {-7, 2294}, {826, 378}, {496, 1381}},
        {{2, 800, 85, 100, 100, 0}, 29, {0, 1145}, {68, 458}, {}},
        {{1, 150, 45, 700, 100, 0}, 55, {996, 99}, {749, 147}, {968, 124}}};
    for (const auto& [launch, positions, landing, tenth, fiftieth] : rows) {
        SCOPED_TRACE(launch.speed);
        ShellFlight flight{launch};
        std::vector<FieldPoint> path{flight.position()};
        for (; isFlying(path.back(), kFlat); path.push_back(flight.position())) flight.advance();
        EXPECT_EQ(path.back(), landing);
        EXPECT_EQ(path.size(), positions);
        EXPECT_EQ(path.at(9), tenth);
        EXPECT_EQ(path.size() < 50 ? FieldPoint{} : path[49], fiftieth);
    }
    ShellFlight flight{{2, 300, 90, 900, 100, 0}};
    for (int step = 0; step < 5; ++step) flight.advance();
    EXPECT_EQ(flight.position(), (FieldPoint{900, 180}));  // a tie: 108 + 75 - 2.5 = 180.5
}

TEST(Landing, IsDecidedByTheColumnAlone) {
    using enum Landing;
    const std::tuple<int, int, int, Landing> rows[] = {
        {4, 300, 4, OutOfBounds},     {5, 300, 5, DirectHit},        {995, 991, 300, SelfHit},
        {996, 996, 300, OutOfBounds}, {504, 500, 504, SelfHit},      {505, 500, 505, DirectHit},
        {0, 300, 700, OutOfBounds},   {1001, 300, 700, OutOfBounds}, {304, 300, 700, SelfHit},
        {296, 300, 700, SelfHit},     {305, 300, 700, Miss},         {295, 300, 700, Miss},
        {705, 300, 700, DirectHit},   {695, 300, 700, DirectHit},    {706, 300, 700, NearMiss},
        {713, 300, 700, NearMiss},    {687, 300, 700, NearMiss},     {714, 300, 700, Miss},
        {686, 300, 700, Miss}};
    for (const auto& [x, from, to, expected] : rows)
        EXPECT_EQ(classifyLanding(x, from, to), expected) << x << " from " << from << " to " << to;
}

TEST(NearMiss, KillsTheFewerTheFartherHalvesToEven) {
    const int rows[][3] = {{100, 6, 14}, {100, 7, 13}, {100, 13, 7}, {87, 9, 9},
                           {1, 6, 0},    {0, 13, 0},   {3, 7, 0},    {11, 7, 2},
                           {19, 7, 2},   {27, 7, 4},   {94, 9, 10}};
    for (const auto& [men, distance, kills] : rows)
        EXPECT_EQ(nearMissKills(men, distance), kills) << men << "/" << distance;
}

TEST(FlyShell, ShowsAYellowShellAtEveryStepAndLeavesATrailOnDemand) {
    for (const int side : {1, 2}) {
        for (const Trail trail : {Trail::Coloured, Trail::None}) {
            AnimatedField stage;
            const FieldPoint tenth{side == 1 ? 136 : 864, 230};
            stage.picture.setPoint(tenth.x, tenth.y, kCyan);  // a star on the shell's way
            std::vector<Colour> atTenth;
            const auto pixel = [&] { return stage.picture.pixel(tenth.x, tenth.y); };
            stage.view.onShowField = [&] { atTenth.push_back(pixel()); };
            const FieldPoint landed = flyShell({side, 300, 75, side == 1 ? 100 : 900, 100, 0},
                                               kFlat, trail, stage.animation, 77);
            EXPECT_EQ(landed, (FieldPoint{side == 1 ? 711 : 289, 89}));
            ASSERT_EQ(stage.pacer.counts, std::vector<std::int32_t>(147, 77));
            const Colour left = trail == Trail::None ? kCyan : side == 1 ? kRed : kMagenta;
            EXPECT_EQ(std::vector(atTenth.begin() + 8, atTenth.begin() + 11),
                      (std::vector{kCyan, kYellow, left}));
            EXPECT_EQ(stage.picture.pixel(landed.x, landed.y), kBlack);
            stage.picture.refresh();
            EXPECT_EQ(pixel(), kCyan);  // no trail was persistent
        }
    }
}

TEST(Explosion, GrowsInYellowAndWhiteAndLeavesABlackDot) {
    using enum Landing;
    const std::tuple<Landing, std::size_t, int, std::string> rows[] = {
        {DirectHit, 42, 516, "bullseye"},
        {SelfHit, 42, 516, "bullseye"},
        {NearMiss, 10, 500, "nearmiss"},
        {Miss, 10, 500, "explosion"}};
    for (const auto& [landing, holds, yOfDot, sound] : rows) {
        const int y = yOfDot;
        SCOPED_TRACE(sound);
        AnimatedField stage;
        stage.picture.filledCircle(500, y, 60, kCyan);
        std::vector<Colour> centre;
        stage.view.onShowField = [&] { centre.push_back(stage.picture.pixel(500, y)); };
        animateExplosion({500, 500}, landing, stage.animation, 9);
        EXPECT_EQ(stage.pacer.counts, std::vector<std::int32_t>(holds, 9));
        EXPECT_EQ((std::vector{centre.at(0), centre.at(1), centre.at(holds - 2), centre.back()}),
                  (std::vector{kYellow, kWhite, kYellow, kBlack}));
        const int reach = holds == 42 ? 11 : 3;  // of a dot 23 or 7 wide
        EXPECT_EQ(stage.picture.pixel(500 + reach, y), kBlack);
        EXPECT_EQ(stage.picture.pixel(500 + reach + 1, y), kCyan);
        EXPECT_EQ(std::ranges::count(pixelsOf(stage.picture), 0xFFFFFFFFu), 0);  // no spark
        EXPECT_EQ(landingSound(landing), sound);
        stage.picture.refresh();
        EXPECT_EQ(stage.picture.pixel(500, y), kCyan);
    }
    EXPECT_EQ(landingSound(OutOfBounds), "outofbounds");
}

}  // namespace skylob::test
