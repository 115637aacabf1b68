#include "battle/light/StormShow.h"

#include <gtest/gtest.h>

#include "battle/light/FieldLayer.h"
#include "battle/light/GunDrawings.h"
#include "tests/support/SkyRig.h"

namespace skylob::test {

struct Show : testing::TestWithParam<int>, BareSky {
    Show() {
        picture.resize(300, GetParam(), 1);
        drawBattlefield(state.field, picture, 2);
        rules = shown = pixelsOf(picture);
        layer.setOn(false);
    }

    /// What is on the display when it shows the lights over the picture, but only where the show
    /// says that something has changed.
    void display() {
        std::vector<std::uint32_t> lit = rules;
        for (const auto& [area, pixel] : show.lights())
            each(area, [&, pixel = pixel](std::size_t at) {
                lightsColours = lightsColours || rules[at] != kBlack.pixel();
                lit[at] = pixel;
            });
        for (const PixelRect& area : show.changes())
            each(area, [&](std::size_t at) { shown[at] = lit[at]; });
        ASSERT_EQ(shown, lit);
    }
    void each(const PixelRect& area, const auto& visit) const {
        for (int y = area.y; y < area.y + area.height; ++y)
            for (int x = area.x; x < area.x + area.width; ++x)
                visit(static_cast<std::size_t>(y * picture.width() + x));
    }
    std::ptrdiff_t changedPixels() const {
        std::ptrdiff_t changed = 0;
        for (std::size_t at = 0; at < rules.size(); ++at) changed += shown[at] != rules[at];
        return changed;
    }

    std::vector<std::uint32_t> rules, shown;
    FieldLayer layer{picture, animation.scene(), state};
    StormShow show;
    bool lightsColours = false;
};

TEST_P(Show, LightsBlackPixelsAloneAndIsGoneInTheEnd) {
    const std::ptrdiff_t black = std::ranges::count(rules, kBlack.pixel());
    int flickers = 0;
    for (int picturesShown = 0; picturesShown < 150; ++picturesShown) {
        show.advance(layer);
        display();
        const std::ptrdiff_t lit = changedPixels();
        flickers += lit == black;
        EXPECT_GT(lit, 50);                             // it rains all the time
        EXPECT_TRUE(lit == black || lit < black / 50);  // or all the sky flickers
    }
    EXPECT_TRUE(flickers >= 5 && flickers < 60) << flickers;
    EXPECT_FALSE(lightsColours);
    EXPECT_EQ(pixelsOf(picture), rules);
    show.end();
    display();
    EXPECT_EQ(changedPixels(), 0);
}

constexpr std::uint32_t kPiece = 0xFF305071u;

/// Guns whose drawings reach 9 pixels beyond the piece, as dark as a barrel's outline.
struct DarkGuns : GunDrawings {
    std::shared_ptr<const GunDrawing> draw(const GunPose&, FieldPicture::PixelSize size) override {
        const int width = size.width + 2 * kReach, height = size.height + kReach;
        std::vector<std::uint32_t> dark(static_cast<std::size_t>(width * height), kDark);
        std::fill(dark.begin(), dark.begin() + width * height / 2, 0);  // the sky is seen through
        return std::make_shared<const GunDrawing>(
            GunDrawing{{width, height, dark}, -kReach, -kReach});
    }
    static constexpr int kReach = 9;
    static constexpr std::uint32_t kDark = 0xFF05070Du;
};

TEST(StormShow, LightsTheSkyBehindTheGunsAndDarkensNothing) {
    BareSky sky;
    sky.picture.resize(984, 512, 1);
    const auto [width, height] = sky.picture.pieceSize();
    const std::vector<std::uint32_t> grey(static_cast<std::size_t>(width * height), kPiece);
    for (const int side : kSides) sky.picture.setPieceImage(side, {width, height, grey});
    drawBattlefield(sky.state.field, sky.picture, 2);
    sky.animation.scene().bolts = {{{300, 900}, {300, 700}}};  // which light the sky, too
    DarkGuns guns;
    FieldLayer layer{sky.picture, sky.animation.scene(), sky.state, &guns};
    layer.update({});
    StormShow show;
    const auto luma = [](std::uint32_t pixel) {
        return 0.299 * (pixel >> 16 & 0xFF) + 0.587 * (pixel >> 8 & 0xFF) + 0.114 * (pixel & 0xFF);
    };
    int lit = 0, darker = 0, onGuns = 0, onPieces = 0;
    for (int pictures = 0; pictures < 150; ++pictures) {
        if (pictures == 75) {  // a bolt that outshines what flickers
            auto& bolt = sky.animation.scene().bolts.emplace_back();
            for (int y = 950; y > 600; --y) bolt.push_back({500, y});
            layer.update({});
        }
        show.advance(layer);
        for (const auto& [area, pixel] : show.lights())
            for (int i = 0; i < area.width * area.height; ++i, ++lit) {
                const int x = area.x + i % area.width, y = area.y + i / area.width;
                const std::uint32_t before = layer.whole()[y * 984 + x];
                darker += luma(pixel) < luma(before) - 2;
                onGuns += before == DarkGuns::kDark;
                onPieces += sky.picture.screenPixels()[y * 984 + x] == kPiece;
            }
    }
    EXPECT_GT(lit, 1'000'000);
    EXPECT_EQ(darker, 0);
    EXPECT_EQ(onGuns, 0);
    EXPECT_GT(onPieces, 100);  // whose images are taken off
}

TEST_P(Show, StandsStillWhereMotionIsToBeReduced) {
    layer.setMotion(Motion::Reduced);
    std::vector<std::uint32_t> first;
    for (int picturesShown = 0; picturesShown < 150; ++picturesShown) {
        show.advance(layer);
        display();
        if (first.empty()) first = shown;
        ASSERT_EQ(shown, first) << picturesShown;
    }
    EXPECT_GT(changedPixels(), 50);
}

INSTANTIATE_TEST_SUITE_P(Heights, Show, testing::Values(170, 780));

}  // namespace skylob::test
