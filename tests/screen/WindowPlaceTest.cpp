#include "screen/WindowPlace.h"

#include <gtest/gtest.h>

namespace skylob::test {

TEST(WindowPlace, IsReadAsItWasWritten) {
    const WindowPlace place{{-1920, -8, 1, 32'767}, WindowState::Maximised};
    EXPECT_EQ(toText(place), "-1920,-8,1,32767,maximised");
    EXPECT_EQ(placeOf(toText(place)), place);
    for (const char* text :
         {"", "1,2,3,4", "1,2,3,4,", "1,2,3,4,tiny", "1,2,3,4,normal,", "1,2,0,4,normal",
          "1,2,3,-4,normal", "1,2,32768,4,normal", "1000001,2,3,4,normal",
          "99999999999,2,3,4,normal", "1.5,2,3,4,normal", " 1,2,3,4,normal", ",,,,normal"})
        EXPECT_FALSE(placeOf(text)) << text;
}

TEST(WindowPlace, IsOnTheDisplayThatShowsMostOfIt) {
    const std::vector<DesktopArea> displays{
        {0, 0, 800, 600}, {800, 0, 1920, 1080}, {-640, -100, 640, 480}};
    const std::pair<DesktopArea, std::size_t> cases[] = {{{500, 0, 700, 600}, 1},
                                                         {{-600, 0, 700, 100}, 2},
                                                         {{-200, 300, 400, 300}, 0},
                                                         {{2720, 0, 100, 100}, 0}};
    for (const auto& [area, display] : cases) EXPECT_EQ(displayShowing(area, displays), display);
}

}  // namespace skylob::test
