#include "screen/ClearPlace.h"

#include <gtest/gtest.h>

namespace skylob::test {

TEST(ClearPlace, HidesTheLeastNearTheMiddle) {
    constexpr DesktopArea kDisplay{100, 50, 1000, 800}, kBattle{200, 150, 700, 500};
    struct Row {
        const char* what;
        DesktopArea display;
        int width, height;
        std::vector<DesktopArea> toBeSeen;
        DesktopArea place;
    };
    const Row rows[] = {
        {"nothing to be seen: the battle's middle", kDisplay, 300, 200, {}, {400, 300, 300, 200}},
        {"free already", kDisplay, 300, 200, {{250, 500, 30, 30}}, {400, 300, 300, 200}},
        // 100 down and as far to the side would be farther than 30 up.
        {"above", kDisplay, 300, 200, {{500, 470, 30, 30}}, {400, 270, 300, 200}},
        {"below", kDisplay, 300, 200, {{500, 310, 30, 30}}, {400, 340, 300, 200}},
        {"beside", kDisplay, 300, 200, {{420, 390, 30, 20}}, {450, 300, 300, 200}},
        {"between two",
         kDisplay,
         300,
         200,
         {{410, 400, 5, 5}, {690, 480, 5, 5}},
         {415, 280, 300, 200}},
        {"a corner of the display",
         kDisplay,
         600,
         700,
         {{250, 400, 30, 30}, {470, 600, 30, 30}},
         {500, 50, 600, 700}},
        {"no room: the smaller part",
         {100, 50, 600, 400},
         600,
         300,
         {{200, 60, 10, 100}, {300, 330, 10, 40}},
         {100, 150, 600, 300}},
        {"larger than the display",
         {100, 50, 250, 100},
         300,
         200,
         {{200, 60, 10, 10}},
         {100, 50, 300, 200}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(clearPlace(row.width, row.height, row.display, kBattle, row.toBeSeen), row.place)
            << row.what;
}

}  // namespace skylob::test
