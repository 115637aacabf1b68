#include "controls/GlintPalette.h"

#include <gtest/gtest.h>

#include "controls/TransferPicture.h"

namespace skylob::test {

constexpr auto bgr = Colour::fromBgr;

TEST(ShiftColour, MovesEachChannelAndScalesBlueOnDemand) {
    using enum BlueShift;
    using enum Bevel;
    const std::tuple<std::uint32_t, int, BlueShift, Bevel, std::uint32_t> rows[] = {
        {0x102030, 48, Scaled, Hard, 0x145060},
        {0x102030, 31, Flat, Soft, 0x1F2F3F},   // 15, not 16
        {0x505050, -31, Flat, Soft, 0x414141},  // -15, not -16
        {0xFFFFFF, 47, Flat, Hard, 0xFFFFFF},
        {0x000000, -64, Flat, Hard, 0x000000},
        {0xF01020, 48, Scaled, Hard, 0xFF4050},
        {0x0A6464, -48, Scaled, Hard, 0x083434}};  // 10 - 2.5 cut to 2
    for (const auto& [colour, delta, blue, bevel, expected] : rows)
        EXPECT_EQ(ShiftColour(bgr(colour), delta, blue, bevel).bgr(), expected) << colour;
}

TEST(BlendToWhite, CutsBeforeItAdds) {
    EXPECT_EQ(BlendToWhite(bgr(0x010203), 255), bgr(0xFFFFFF));
    EXPECT_EQ(BlendToWhite(bgr(0xFF6401), 100), bgr(0xFFA064));  // 100 * 155 / 255 = 60.78
}

TEST(TranslateColour, LooksUpReferencesOnly) {
    EXPECT_EQ(TranslateColour(0x123456), bgr(0x123456));
    EXPECT_EQ(TranslateColour(0x8000000D), bgr(0x800000));
    EXPECT_EQ(TranslateColour(0x80000010), bgr(0x808080));
    for (const ColourReference other : {0x800000FEu, 0x80C0C0C0u, 0x01FFFFFFu})
        EXPECT_EQ(TranslateColour(other), kBlack) << std::hex << other;
}

// Palettes in the order of their fields: face, hovering face, text, hovering text; shadow, light,
// highlight, dark shadow; hot border, hot fill; mask, light face.
static GlintPalette palette(auto... colours) {
    return {bgr(static_cast<std::uint32_t>(colours))...};
}

TEST(RecalcColours, TakesTheColoursOfTheScheme) {
    GlintProperties grey;
    grey.BackColor = 0xC0C0C0;
    grey.BackOver = 0x8000000D;
    grey.ForeColor = 0x010203;
    grey.ForeOver = 0x040506;
    grey.MaskColor = 0x80000014;
    grey.ColorScheme = 2;  // the button's own colours
    EXPECT_EQ(RecalcColours(grey, {}),
              palette(0xC0C0C0, 0x800000, 0x010203, 0x040506, 0x808080, 0xDFDFDF, 0xEFEFEF,
                      0x000000, 0x404040, 0xC0C0C0, 0xFFFFFF, 0xF0F0F0));
    grey.SoftBevel = true;
    EXPECT_EQ(RecalcColours(grey, {}),
              palette(0xC0C0C0, 0x800000, 0x010203, 0x040506, 0xA0A0A0, 0xCFCFCF, 0xD7D7D7,
                      0x606060, 0x808080, 0xC0C0C0, 0xFFFFFF, 0xD8D8D8));
    grey.ButtonType = 3;
    grey.SoftBevel = false;
    grey.BackColor = 0x102030;
    EXPECT_EQ(RecalcColours(grey, {}).FaceLightColour, bgr(0x145060));

    grey.ButtonType = 0;
    grey.ColorScheme = 3;
    GlintPalette fixed = palette(0xC0C0C0, 0xC0C0C0, 0, 0, 0x808080, 0xDFDFDF, 0xFFFFFF, 0x000000,
                                 0x800000, 0xD1ADAD, 0xFFFFFF, 0xF0F0F0);
    EXPECT_EQ(RecalcColours(grey, {}), fixed);
    fixed.HotFillColour = bgr(0xD7B0B0);  // the system's
    for (const int scheme : {1, 0, 5, -2}) {
        grey.ColorScheme = scheme;
        EXPECT_EQ(RecalcColours(grey, {}), fixed);
    }
    grey.ColorScheme = 4;
    EXPECT_EQ(RecalcColours(grey, {bgr(0x302010), bgr(0xF0E0D0)}),
              palette(0x302010, 0x302010, 0xF0E0D0, 0xF0E0D0, 0x000000, 0x4F3F2F, 0x5F4F3F,
                      0x000000, 0x800000, 0xD7B0B0, 0xFFFFFF, 0x605040));
}

using Bytes = std::vector<std::uint8_t>;  // blue, green, red and so on

static Bytes transferred(const Bytes& picture, Bytes target, const TransferEffects& effects,
                         std::optional<Colour> transparent = {},
                         const NearestColour& nearest = {}) {
    const int width = static_cast<int>(picture.size()) / 3;
    TransferPicture({picture, width, 1, width * 3}, {target, width, 1, width * 3}, effects,
                    transparent, nearest);
    return target;
}

TEST(TransferPicture, LeavesTheFaceWhereThePictureIsTransparent) {
    const Bytes picture{1, 2, 3, 4, 5, 6}, face{90, 91, 92, 93, 94, 95};
    EXPECT_EQ(transferred(picture, face, {}), picture);
    EXPECT_EQ(transferred(picture, face, {}, bgr(0x010203)), (Bytes{90, 91, 92, 4, 5, 6}));
    EXPECT_EQ(transferred(picture, face, {.ghost = true, .blend = true}, bgr(0x040506)),
              (Bytes{30, 31, 32, 93, 94, 95}));  // (2 * 1 + 90) / 3 = 30.67
    // The surface shows no finer shades than these: both pixels become the transparent colour.
    const auto coarse = [](Colour) { return bgr(0x030303); };
    EXPECT_EQ(transferred(picture, face, {}, bgr(0x030303), coarse), face);
    EXPECT_EQ(transferred(picture, face, {}, bgr(0x010203), coarse), picture);
}

TEST(TransferPicture, HasItsEffects) {
    const std::tuple<Bytes, TransferEffects, Bytes> rows[] = {
        {{128, 128, 128}, {.darkOnly = true}, {128, 128, 128}},
        {{129, 128, 128}, {.darkOnly = true}, {0, 0, 0}},
        {{30, 20, 10}, {.ghost = true, .greyscale = true}, {18, 18, 18}},
        // Red 15 * 0.3 = 4.5 goes to 4. Red 5 * 0.3 = 1.5 goes to 2 by itself, 2 + 0.59 = 2.59 to
        // 3, where one sum of 2.09 would give 2.
        {{0, 0, 15}, {.ghost = true, .greyscale = true}, {4, 4, 4}},
        {{0, 1, 5}, {.ghost = true, .greyscale = true}, {3, 3, 3}},
        // Greyscale goes before blend; neither acts without ghost; ghost alone copies.
        {{30, 20, 10}, {.ghost = true, .greyscale = true, .blend = true}, {18, 18, 18}},
        {{30, 20, 10}, {.greyscale = true, .blend = true}, {30, 20, 10}},
        {{250, 250, 250}, {.ghost = true, .darkOnly = true}, {250, 250, 250}}};
    for (const auto& [picture, effects, onBlack] : rows)
        EXPECT_EQ(transferred(picture, {0, 0, 0}, effects), onBlack);
}

TEST(TransferPicture, KeepsToItsRows) {
    const Bytes picture{1, 1, 1, 0, 2, 2, 2, 0};  // 1 x 2, rows of 4 bytes
    Bytes target{9, 9, 9, 8, 8, 9, 9, 9, 8, 8};   // 1 x 2, rows of 5 bytes
    TransferPicture({picture, 1, 2, 4}, {target, 1, 2, 5}, {}, {});
    EXPECT_EQ(target, (Bytes{1, 1, 1, 8, 8, 2, 2, 2, 8, 8}));
}

}  // namespace skylob::test
