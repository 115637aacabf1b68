#include "screen/WindowPlace.h"

#include <gtest/gtest.h>

namespace skylob::test {

TEST(WindowPlace, ReadsWhatItWrites) {
    const WindowPlace places[] = {{{100, 50, 1008, 728}, WindowState::Normal},
                                  {{-1920, -8, 1, 32'767}, WindowState::Maximised},
                                  {{1'000'000, 0, 784, 570}, WindowState::FullScreen}};
    EXPECT_EQ(toText(places[1]), "-1920,-8,1,32767,maximised");
    for (const WindowPlace& place : places) EXPECT_EQ(placeOf(toText(place)), place);
}

TEST(WindowPlace, RefusesWhatIsNoPlace) {
    for (const char* text :
         {"", "normal", ",,,,", "1,2,3,4", "1,2,3,4,", "1,2,3,4,tiny", "1,2,3,4,normal,",
          "1,2,0,4,normal", "1,2,3,-4,normal", "1,2,32768,4,normal", "1000001,2,3,4,normal",
          "99999999999,2,3,4,normal", "1.5,2,3,4,normal", " 1,2,3,4,normal", "a,b,c,d,normal"})
        EXPECT_FALSE(placeOf(text)) << text;
}

TEST(WindowPlace, IsOnTheDisplayThatShowsMostOfIt) {
    const std::vector<DesktopArea> displays{
        {0, 0, 800, 600}, {800, 0, 1920, 1080}, {-640, -100, 640, 480}};
    const std::pair<DesktopArea, std::size_t> cases[] = {
        {{10, 10, 700, 500}, 0},    {{500, 0, 700, 600}, 1},  {{-600, 0, 700, 100}, 2},
        {{-200, 300, 400, 300}, 0}, {{0, 2000, 100, 100}, 0}, {{2720, 0, 100, 100}, 0}};
    for (const auto& [area, display] : cases)
        EXPECT_EQ(displayShowing(area, displays), display) << area.x << ',' << area.y;
}

TEST(WindowPlace, IsMovedAndShrunkNoMoreThanNeeded) {
    const DesktopArea room{800, 30, 1000, 700};
    const std::pair<DesktopArea, DesktopArea> cases[] = {
        {{900, 40, 300, 200}, {900, 40, 300, 200}},
        {{0, 0, 300, 200}, {800, 30, 300, 200}},
        {{5000, 5000, 300, 200}, {1500, 530, 300, 200}},
        {{1700, 100, 1000, 200}, {800, 100, 1000, 200}},
        {{-99, 100, 4000, 701}, {800, 30, 1000, 700}}};
    for (const auto& [area, brought] : cases) EXPECT_EQ(broughtInto(area, room), brought) << area.x;
}

}  // namespace skylob::test
