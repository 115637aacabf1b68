#include <gtest/gtest.h>

#include "tests/support/SkyRig.h"

namespace skylob::test {

constexpr Colour kTan = Colour::fromBgr(0x0087D0);

static FieldPicture pictureOf(int width, int height, int dotScale = 1) {
    FieldPicture picture;
    picture.resize(width, height, dotScale);
    return picture;
}

/// How many device pixels of the screen picture are not black.
static int litPixels(const FieldPicture& picture) {
    const auto isLit = [](std::uint32_t pixel) { return pixel != 0xFF000000u; };
    return static_cast<int>(std::ranges::count_if(pixelsOf(picture), isLit));
}

TEST(FieldPicture, MapsTheFieldsCornersToItsOwn) {
    FieldPicture picture = pictureOf(984, 512);
    picture.setPoint(1, 1, kRed);
    picture.setPoint(1000, 1000, kTan);
    EXPECT_EQ(picture.screenPixels()[511 * 984], 0xFFFF0000u);  // bottom left, red-green-blue
    EXPECT_EQ(picture.screenPixels()[983], 0xFFD08700u);        // top right
    EXPECT_EQ(picture.pixel(1000, 1000), kTan);
    EXPECT_EQ(picture.pixel(1000, 1002), kBlack);  // one pixel outside
    EXPECT_EQ(picture.pixel(0, 1), kBlack);
    EXPECT_EQ(litPixels(picture), 2);
}

TEST(FieldPicture, DrawsDotsOfThePensWidth) {
    // Pixel centres within the circle of that diameter, counted on squared paper.
    const int rows[][3] = {{1, 1, 1},  {1, 2, 4}, {1, 3, 9},  {1, 4, 12},
                           {1, 6, 32}, {2, 1, 4}, {2, 2, 12}, {4, 1, 16}};
    for (const auto& [dotScale, penWidth, pixels] : rows) {
        FieldPicture picture = pictureOf(100, 100, dotScale);
        picture.setPoint(500, 500, kYellow, penWidth);
        EXPECT_EQ(litPixels(picture), pixels) << dotScale << " x " << penWidth;
    }
}

TEST(FieldPicture, CutsOffWhatLiesOutside) {
    FieldPicture picture = pictureOf(50, 40);
    for (const int at : {-3'000'000, -30, 1030, 3'000'000}) {
        const int width = at % 100 == 0 ? 23 : 1;
        picture.setPoint(at, 500, kWhite, width);
        picture.setPassingPoint(500, at, kWhite, width);
        picture.filledCircle(at, at, 40, kWhite);
        picture.ground(std::vector{0, std::min(at, -1)}, kWhite, width);
        EXPECT_EQ(picture.pixel(at, at), kBlack);
        picture.putBack(picture.liftPoint(at, at, width));
        picture.putBack(picture.liftPoint(at, 500, width));
    }
    FieldPicture none;
    none.setPoint(5, 5, kWhite);
    none.filledCircle(5, 5, 40, kWhite);
    none.ground(std::vector{0, 900}, kWhite);
    EXPECT_EQ(none.pixel(5, 5), kBlack);
}

TEST(FieldPicture, KeepsOnlyWhatIsDrawnPersistentlyAndLaysPiecesOverIt) {
    FieldPicture picture = pictureOf(1000, 1000);
    picture.setPieceImage(1, {24, 46, std::vector<std::uint32_t>(24 * 46, 0x80800000u)});
    picture.placePiece(1, 500, 100);
    picture.setPoint(500, 100, paletteColour(9));  // blue
    picture.setPassingPoint(200, 200, kYellow);
    EXPECT_EQ(picture.pixel(200, 200), kYellow);
    EXPECT_EQ(picture.pixel(500, 101), kBlack);
    picture.refresh();
    EXPECT_EQ(picture.pixel(200, 200), kBlack);
    EXPECT_EQ(picture.pixel(500, 101).bgr(), 0x000080u);
    EXPECT_EQ(picture.pixel(500, 100).bgr(), 0x7F0080u);  // half the blue shines through
    picture.hidePieces();
    picture.refresh();
    EXPECT_EQ(picture.pixel(500, 101), kBlack);
}

TEST(FieldPicture, DrawsPersistentlyUnderWhatIsThereForTheMoment) {
    for (const int edge : {41, 50}) {
        FieldPicture passed = pictureOf(edge, 41), untouched = pictureOf(edge, 41);
        for (const int step : {0, 1, 2, 3}) {
            for (int x = 1; x <= 1000; x += 37)
                passed.setPassingPoint(x, x * step % 999, kYellow, 3);
            const auto lifted = passed.liftPoint(999, 500, 3);
            for (FieldPicture* each : {&passed, &untouched}) {
                each->filledCircle(200 * step, 300, 150, kCyan);
                each->setPoint(999, 500, step == 2 ? kWhite : kRed, 3);
                each->setPoint(20 * step, 990, kTan, 2);
                if (step == 2) each->ground(std::vector{0, 0, 700, 300}, kWhite, 9);
            }
            passed.putBack(lifted);
            EXPECT_FALSE(pixelsOf(passed) == pixelsOf(untouched));
            if (step == 0) continue;  // the next ones are drawn upon the same
            passed.refresh();
            EXPECT_TRUE(pixelsOf(passed) == pixelsOf(untouched)) << edge << ", " << step;
        }
    }
}

TEST(FieldPicture, PutsBackExactlyWhatItLifted) {
    FieldPicture picture = pictureOf(200, 200, 2);
    picture.setPassingPoint(503, 500, kCyan, 2);  // covers the dot below only in part
    const auto before = pixelsOf(picture);
    const auto lifted = picture.liftPoint(500, 500);
    picture.setPassingPoint(500, 500, kYellow);
    picture.putBack(lifted);
    EXPECT_TRUE(pixelsOf(picture) == before);
    EXPECT_GT(litPixels(picture), 0);

    picture.refresh();  // and nothing at all where the whole picture is a new one
    picture.putBack(lifted);
    EXPECT_EQ(litPixels(picture), 0);
    picture.resize(10, 10, 1);
    picture.putBack(lifted);
    EXPECT_EQ(litPixels(picture), 0);
}

TEST(FieldPicture, TellsWhatHasChanged) {
    FieldPicture picture = pictureOf(1000, 1000, 2);
    EXPECT_EQ(picture.takeDirty(), (PixelRect{0, 0, 1000, 1000}));
    EXPECT_TRUE(picture.takeDirty().isEmpty());
    picture.setPoint(11, 990, kRed);
    picture.setPoint(21, 980, kRed);
    EXPECT_EQ(picture.takeDirty(), (PixelRect{10, 10, 12, 12}));
    picture.setPassingPoint(11, 990, kRed, 4);
    EXPECT_EQ(picture.takeDirty(), (PixelRect{7, 7, 8, 8}));
}

}  // namespace skylob::test
