#include "battle/Battlefield.h"

#include <gtest/gtest.h>

#include "base/SeededRandom.h"
#include "tests/support/Fakes.h"

namespace skylob::test {

static Battlefield generated(std::uint64_t seed, int round = 1, int rounds = 10) {
    SeededRandom random{seed};
    Battlefield field;
    generateBattlefield(field, random, round, rounds);
    return field;
}

TEST(RandomInt, AppliesItsBoundsAsWritten) {
    const double almostOne = 1 - 0x1p-53;
    const std::tuple<int, int, double, int> rows[] = {
        {1, 13, 0, 1},        {1, 13, almostOne, 13}, {-1, 0, 0.4999, -1},     {-1, 0, 0.5, 0},
        {1, 0, almostOne, 1}, {-1, -4, 0, -1},        {-1, -4, almostOne, -3}, {-4, -7, 0.5, -5}};
    for (const auto& [low, high, r, expected] : rows) {
        ScriptedRandom random{{r}};
        EXPECT_EQ(RandomInt(random, low, high), expected) << low << ".." << high << " at " << r;
    }
}

TEST(SlopeStep, HasAFixedRangeForEachKind) {
    const std::vector<int> expected[7] = {
        {4, 5, 6, 7, 7},    {1, 2, 3, 4, 4},      {-1, 0, 1, 2, 3},    {-1, -1, 0, 1, 1},
        {-3, -2, -1, 0, 1}, {-1, -2, -2, -3, -3}, {-4, -5, -5, -6, -6}};
    for (int kind = 0; kind < 7; ++kind) {
        ScriptedRandom random{{0, 0.25, 0.5, 0.75, 0.999}};
        std::vector<int> steps(5);
        for (int& step : steps) step = SlopeStep(random, kind);
        EXPECT_EQ(steps, expected[kind]) << "kind " << kind;
    }
}

/// Mountain, moon, ground's colour, pieces; sum and weighted sum of heights; stars, the first one.
static std::string figuresOf(const Battlefield& field) {
    int sum = 0, weightedSum = 0;
    for (int x = 1; x <= 1000; ++x) {
        sum += field.heightAt(x);
        weightedSum += x * field.heightAt(x);
    }
    const auto& star = field.stars.at(0);
    std::ostringstream text;
    text << field.PeakX << ' ' << field.leftFoot << ' ' << field.rightFoot << ", " << field.MoonX
         << ' ' << field.moonY << ", " << std::hex << field.groundColour.bgr() << std::dec << ", "
         << field.PieceX[1] << ' ' << field.PieceX[2] << ' ' << field.PieceY[1] << ' '
         << field.PieceY[2] << "; " << sum << ' ' << weightedSum << "; " << field.stars.size()
         << ' ' << star.x << ' ' << star.y << ' ' << std::hex << star.colour.bgr();
    return text.str();
}

TEST(GenerateBattlefield, IsMadeByItsSeed) {
    // Worked out by a second program that shares no code with this one.
    EXPECT_EQ(figuresOf(generated(1)),
              "526 264 705, 668 707, 8000, 108 766 579 197; 518645 198566095; 734 1 747 ffff00");
    EXPECT_EQ(figuresOf(generated(2)),
              "692 606 769, 135 881, 4080, 348 855 547 702; 584999 336520710; 703 1 350 800000");
    EXPECT_EQ(figuresOf(generated(42)),
              "676 580 737, 624 812, 4080, 28 757 159 601; 466969 275327947; 890 1 954 ff00");
    EXPECT_EQ(figuresOf(generated(12)),
              "393 280 689, 709 168, 800000, 163 903 644 26; 406114 123457831; 733 1 913 ffff00");
    for (std::uint64_t seed = 1; seed <= 400; ++seed) {
        const Battlefield field = generated(seed);
        EXPECT_LT(std::max(field.PeakX - field.leftFoot, field.rightFoot - field.PeakX), 300);
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
    field.stars = {{700, 900, kRed}};
    field.MoonX = 300;
    field.moonY = 600;
    field.MoonOffset = 40;  // the shadow stands 35 units to the right
    field.groundColour = Colour::fromBgr(0x0087D0);
    field.PieceX = {100, 900};
    field.PieceY = {200, 200};
    FieldPicture picture;
    picture.resize(1000, 1000, 1);  // a pixel is a unit
    FieldPicture::PieceImage white{24, 46, std::vector<std::uint32_t>(24 * 46, 0xFFFFFFFF)};
    for (const int side : {1, 2}) picture.setPieceImage(side, white);
    const auto expectAt = [&](Colour colour, const std::vector<std::pair<int, int>>& places) {
        for (const auto& [x, y] : places) EXPECT_EQ(picture.pixel(x, y), colour) << x << " " << y;
    };
    field.starWidth = 2;
    drawBattlefield(field, picture, 2);
    expectAt(kRed, {{701, 899}});
    field.starWidth = 1;
    drawBattlefield(field, picture, 1);
    expectAt(kRed, {{700, 900}});
    expectAt(kCyan, {{261, 600}, {294, 600}});  // 335 - 40 is where the shadow begins
    expectAt(kBlack, {{700, 899}, {296, 600}, {259, 600}, {87, 230}});
    for (const int x : {1, 2, 500, 501, 999, 1000}) {
        expectAt(field.groundColour, {{x, 1}, {x, 200}});
        expectAt(kBlack, {{x, 201}});
    }
    // From 12 units left of the column, and from 30 above the ground 46 downwards.
    EXPECT_EQ(picture.pieceArea(1), (PixelRect{87, 770, 24, 46}));
    expectAt(kWhite, {{88, 230}, {111, 185}, {888, 230}});
    expectAt(field.groundColour, {{111, 184}});
    field.MoonOffset = -32;  // as in round 19: the shadow stands 37 units to the left
    drawBattlefield(field, picture, 1);
    expectAt(kBlack, {{261, 600}, {302, 600}, {341, 600}});
    expectAt(kCyan, {{305, 600}, {339, 600}});
}

}  // namespace skylob::test
