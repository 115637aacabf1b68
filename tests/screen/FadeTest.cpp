#include <gtest/gtest.h>

#include "screen/Fade.h"

namespace skylob::test {

TEST(Fade, EndsExactlyAtItsEnd) {
    const auto opacities = [](int start, int end, int step) {
        Fade fade;
        fade.StartFade(start, end, step, AfterFade::Close);
        std::vector<int> shown;
        while (fade.isActive() && shown.size() < 1000) shown.push_back(fade.tick());
        EXPECT_EQ(fade.after(), AfterFade::Close);
        return shown;
    };
    EXPECT_EQ(opacities(kInvisible, kOpaque, kFadeStep),
              (std::vector{20, 40, 60, 80, 100, 120, 140, 160, 180, 200, 220, 240, 255}));
    EXPECT_EQ(opacities(kOpaque, kInvisible, kFadeStep),
              (std::vector{235, 215, 195, 175, 155, 135, 115, 95, 75, 55, 35, 15, 0}));
    EXPECT_EQ(opacities(kOpaque, kInvisible, kSlowFadeStep).at(24), 5);
}

}  // namespace skylob::test
