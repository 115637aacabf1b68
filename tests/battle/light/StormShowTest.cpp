#include "battle/light/StormShow.h"

#include <gtest/gtest.h>

#include "tests/support/SkyRig.h"

namespace skylob::test {

struct Show : testing::TestWithParam<int>, BareSky {
    Show() {
        picture.resize(300, GetParam(), 1);
        drawBattlefield(state.field, picture, 2);
        rules = shown = pixelsOf(picture);
    }

    /// What is on the display when it shows the lights over the picture, but only where the show
    /// says that something has changed.
    void display() {
        std::vector<std::uint32_t> lit = rules;
        for (const auto& [area, pixel] : show.lights())
            each(area, [&](std::size_t at) {
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
    StormShow show;
    bool lightsColours = false;
};

TEST_P(Show, LightsBlackPixelsAloneAndIsGoneInTheEnd) {
    const std::ptrdiff_t black = std::ranges::count(rules, kBlack.pixel());
    int flickers = 0;
    for (int picturesShown = 0; picturesShown < 150; ++picturesShown) {
        show.advance(picture);
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

TEST_P(Show, StandsStillWhereMotionIsToBeReduced) {
    std::vector<std::uint32_t> first;
    for (int picturesShown = 0; picturesShown < 150; ++picturesShown) {
        show.advance(picture, Motion::Reduced);
        display();
        if (first.empty()) first = shown;
        ASSERT_EQ(shown, first) << picturesShown;
    }
    EXPECT_GT(changedPixels(), 50);
}

INSTANTIATE_TEST_SUITE_P(Heights, Show, testing::Values(170, 780));

}  // namespace skylob::test
