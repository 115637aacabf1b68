#include "battle/Battlefield.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "tests/support/Fakes.h"

namespace skylob::test {
namespace {

Battlefield generated(std::uint64_t seed, int round = 1, int rounds = 10) {
    SeededRandom random{seed};
    Battlefield field;
    generateBattlefield(field, random, round, rounds);
    return field;
}

TEST(RandomInt, AppliesItsBoundsAsWritten) {
    struct Row {
        int low, high;
        double r;
        int expected;
    };
    const double almostOne = 1 - 0x1p-53;
    for (const Row& row : {Row{1, 13, 0, 1}, Row{1, 13, almostOne, 13}, Row{-1, 0, 0.4999, -1},
                           Row{-1, 0, 0.5, 0}, Row{1, 0, almostOne, 1}, Row{-1, -4, 0, -1},
                           Row{-1, -4, almostOne, -3}, Row{-4, -7, 0.5, -5}}) {
        ScriptedRandom random{{row.r}};
        EXPECT_EQ(RandomInt(random, row.low, row.high), row.expected)
            << row.low << ".." << row.high << " at " << row.r;
    }
}

TEST(SlopeStep, HasAFixedRangeForEachKind) {
    const double r[] = {0, 0.25, 0.5, 0.75, 0.999};
    const int expected[7][5] = {{4, 5, 6, 7, 7},     {1, 2, 3, 4, 4},    {-1, 0, 1, 2, 3},
                                {-1, -1, 0, 1, 1},   {-3, -2, -1, 0, 1}, {-1, -2, -2, -3, -3},
                                {-4, -5, -5, -6, -6}};
    for (int kind = 0; kind < 7; ++kind) {
        for (int i = 0; i < 5; ++i) {
            ScriptedRandom random{{r[i]}};
            EXPECT_EQ(SlopeStep(random, kind), expected[kind][i]) << "kind " << kind;
        }
    }
}

/// Mountain, moon, ground's colour, pieces; sum and weighted sum of heights; stars, the first one.
std::vector<int> figuresOf(const Battlefield& field) {
    int sum = 0, weightedSum = 0;
    for (int x = 1; x <= 1000; ++x) {
        sum += field.heightAt(x);
        weightedSum += x * field.heightAt(x);
    }
    const auto& star = field.stars.at(0);
    const int stars = static_cast<int>(field.stars.size());
    const auto ground = static_cast<int>(field.groundColour);
    const auto colour = static_cast<int>(star.colour);
    const auto& [x, y] = std::tie(field.PieceX, field.PieceY);
    return {field.PeakX,
            field.leftFoot,
            field.rightFoot,
            field.MoonX,
            field.moonY,
            ground,
            x[1],
            x[2],
            y[1],
            y[2],
            sum,
            weightedSum,
            stars,
            star.x,
            star.y,
            colour};
}

TEST(GenerateBattlefield, IsMadeByItsSeed) {
    // Worked out by a second program that shares no code with this one.
    using Figures = std::vector<int>;
    EXPECT_EQ(figuresOf(generated(1)), (Figures{526, 264, 705, 668, 707, 0x008000, 108, 766, 579,
                                                197, 518645, 198566095, 734, 1, 747, 0xFFFF00}));
    EXPECT_EQ(figuresOf(generated(2)), (Figures{692, 606, 769, 135, 881, 0x004080, 348, 855, 547,
                                                702, 584999, 336520710, 703, 1, 350, 0x800000}));
    EXPECT_EQ(figuresOf(generated(42)), (Figures{676, 580, 737, 624, 812, 0x004080, 28, 757, 159,
                                                 601, 466969, 275327947, 890, 1, 954, 0x00FF00}));
    EXPECT_EQ(figuresOf(generated(12)), (Figures{393, 280, 689, 709, 168, 0x800000, 163, 903, 644,
                                                 26, 406114, 123457831, 733, 1, 913, 0xFFFF00}));
}

TEST(GenerateBattlefield, KeepsItsPromisesForAnySeed) {
    for (std::uint64_t seed = 1; seed <= 400; ++seed) {
        SCOPED_TRACE(seed);
        const Battlefield field = generated(seed);
        ASSERT_GE(field.PieceX[1], 20);
        ASSERT_LE(field.PieceX[1], field.leftFoot - 20);
        ASSERT_GE(field.PieceX[2], field.rightFoot + 20);
        ASSERT_LE(field.PieceX[2], 980);
        for (int x = 1; x <= 1000; ++x) {
            const bool mountain = x >= field.leftFoot && x <= field.rightFoot;
            ASSERT_GE(field.heightAt(x), 25) << x;
            ASSERT_LE(field.heightAt(x), mountain ? 902 : 802) << x;
        }
        std::vector<bool> starry(1001);
        for (const auto& star : field.stars) {
            starry[static_cast<std::size_t>(star.x)] = true;
            ASSERT_GE(star.y, field.heightAt(star.x) + 25);
            ASSERT_LE(star.y, 999);
            ASSERT_NE(star.colour, kBlack);
        }
        for (int x = 1; x <= 1000; ++x)
            ASSERT_TRUE(starry[static_cast<std::size_t>(x)] || field.heightAt(x) >= 600) << x;
    }
}

TEST(GenerateBattlefield, LetsTheMoonWaneUntilTheLastRound) {
    SeededRandom random{7};
    Battlefield field;
    for (int round = 1; round <= 20; ++round) {
        generateBattlefield(field, random, round, 20);
        EXPECT_EQ(field.MoonOffset, 44 - 4 * round);
        EXPECT_EQ(field.hasMoon(), round < 20);
    }
    // Without a moon its two draws are not made either.
    EXPECT_EQ(generated(42, 10, 10).PieceX, (PerSide<int>{238, 940}));
}

TEST(DrawBattlefield, ShowsSkyMoonGroundAndPieces) {
    Battlefield field;
    field.TerrainHeight.fill(200);
    field.stars = {{700, 900, 0x0000FF}};
    field.MoonX = 300;
    field.moonY = 600;
    field.MoonOffset = 40;  // the shadow stands 35 units to the right
    field.groundColour = 0x0087D0;
    field.PieceX = {100, 900};
    field.PieceY = {200, 200};
    FieldPicture picture;
    picture.resize(1000, 1000, 1);  // a pixel is a unit
    FieldPicture::PieceImage white{24, 46, std::vector<std::uint32_t>(24 * 46, 0xFFFFFFFF)};
    for (const int side : {1, 2}) picture.setPieceImage(side, white);
    picture.setPenWidth(2);  // as a round without an explosion leaves it
    drawBattlefield(field, picture, 2);
    EXPECT_EQ(picture.pixel(701, 899), 0x0000FFu);
    EXPECT_EQ(picture.penWidth(), 2);
    picture.setPenWidth(1);
    drawBattlefield(field, picture, 2);

    EXPECT_EQ(picture.pixel(700, 900), 0x0000FFu);
    EXPECT_EQ(picture.pixel(700, 899), kBlack);
    EXPECT_EQ(picture.pixel(261, 600), kCyan);
    EXPECT_EQ(picture.pixel(294, 600), kCyan);
    EXPECT_EQ(picture.pixel(296, 600), kBlack);  // 335 - 40 is where the shadow begins
    EXPECT_EQ(picture.pixel(259, 600), kBlack);
    for (const int x : {1, 2, 500, 501, 999, 1000}) {
        EXPECT_EQ(picture.pixel(x, 1), 0x0087D0u) << x;
        EXPECT_EQ(picture.pixel(x, 200), 0x0087D0u) << x;
        EXPECT_EQ(picture.pixel(x, 201), kBlack) << x;
    }
    // From 12 units left of the column, and from 30 above the ground 46 downwards.
    EXPECT_EQ(picture.pieceArea(1), (PixelRect{87, 770, 24, 46}));
    EXPECT_EQ(picture.pixel(88, 230), kWhite);
    EXPECT_EQ(picture.pixel(111, 185), kWhite);
    EXPECT_EQ(picture.pixel(87, 230), kBlack);
    EXPECT_EQ(picture.pixel(111, 184), 0x0087D0u);
    EXPECT_EQ(picture.pixel(888, 230), kWhite);
}

}  // namespace
}  // namespace skylob::test
