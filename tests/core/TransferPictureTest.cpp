#include "controls/TransferPicture.h"

#include <gtest/gtest.h>

#include <vector>

namespace skylob {
namespace {

using Bytes = std::vector<std::uint8_t>;  // blue, green, red and so on

Bytes transferred(const Bytes& picture, Bytes target, const TransferEffects& effects,
                  std::optional<Colour> transparent = {}, const NearestColour& nearest = {}) {
    const int width = static_cast<int>(picture.size()) / 3;
    TransferPicture({picture, width, 1, width * 3}, {target, width, 1, width * 3}, effects,
                    transparent, nearest);
    return target;
}

TEST(TransferPicture, LeavesTheFaceWhereThePictureIsTransparent) {
    const Bytes picture{1, 2, 3, 4, 5, 6}, face{90, 91, 92, 93, 94, 95};
    EXPECT_EQ(transferred(picture, face, {}), picture);
    EXPECT_EQ(transferred(picture, face, {}, 0x010203), (Bytes{90, 91, 92, 4, 5, 6}));
    EXPECT_EQ(transferred(picture, face, {.ghost = true, .blend = true}, 0x040506),
              (Bytes{30, 31, 32, 93, 94, 95}));  // (2 * 1 + 90) / 3 = 30.67
    // The surface shows no finer shades than these: both pixels become the transparent colour.
    const auto coarse = [](Colour) { return Colour{0x030303}; };
    EXPECT_EQ(transferred(picture, face, {}, 0x030303, coarse), face);
    EXPECT_EQ(transferred(picture, face, {}, 0x010203, coarse), picture);
}

TEST(TransferPicture, HasItsEffects) {
    const auto ofBlack = [](const Bytes& picture, const TransferEffects& effects) {
        return transferred(picture, {0, 0, 0}, effects);
    };
    EXPECT_EQ(ofBlack({128, 128, 128}, {.darkOnly = true}), (Bytes{128, 128, 128}));
    EXPECT_EQ(ofBlack({129, 128, 128}, {.darkOnly = true}), (Bytes{0, 0, 0}));
    EXPECT_EQ(ofBlack({30, 20, 10}, {.ghost = true, .greyscale = true}), (Bytes{18, 18, 18}));
    // Red 15 * 0.3 = 4.5 goes to 4. Red 5 * 0.3 = 1.5 goes to 2 by itself, 2 + 0.59 = 2.59 to 3,
    // where one sum of 2.09 would give 2.
    EXPECT_EQ(ofBlack({0, 0, 15}, {.ghost = true, .greyscale = true}), (Bytes{4, 4, 4}));
    EXPECT_EQ(ofBlack({0, 1, 5}, {.ghost = true, .greyscale = true}), (Bytes{3, 3, 3}));
    // Greyscale goes before blend; neither acts without ghost; ghost alone copies.
    EXPECT_EQ(ofBlack({30, 20, 10}, {.ghost = true, .greyscale = true, .blend = true}),
              (Bytes{18, 18, 18}));
    EXPECT_EQ(ofBlack({30, 20, 10}, {.greyscale = true, .blend = true}), (Bytes{30, 20, 10}));
    EXPECT_EQ(ofBlack({250, 250, 250}, {.ghost = true, .darkOnly = true}), (Bytes{250, 250, 250}));
}

TEST(TransferPicture, KeepsToItsRows) {
    const Bytes picture{1, 1, 1, 0, 2, 2, 2, 0};  // 1 x 2, rows of 4 bytes
    Bytes target{9, 9, 9, 8, 8, 9, 9, 9, 8, 8};   // 1 x 2, rows of 5 bytes
    TransferPicture({picture, 1, 2, 4}, {target, 1, 2, 5}, {}, {});
    EXPECT_EQ(target, (Bytes{1, 1, 1, 8, 8, 2, 2, 2, 8, 8}));
}

}  // namespace
}  // namespace skylob
