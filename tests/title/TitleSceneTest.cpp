#include "title/TitleScene.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <valarray>

namespace skylob::test {

TEST(TitleScene, IsTheSameInEveryLoopAndOnEveryMachine) {
    // How many spots, and the sums of their fields, each times its place in the list. Worked out
    // by a second program that shares no code with this one.
    const std::pair<double, const char*> rows[] = {
        {0.44, "110 1714203 542453 6170 0 95805342328 1095310"},
        {0.45, "111 1727967 568982 6836 0 97666774366 1119875"},
        {0.6, "112 1741409 595973 7439 0 99544976062 982515"},
        {1.7, "144 2743890 953248 13066 0 168417878526 1916206"},
        {2.8, "192 6659158 2277108 33604 704 303617452658 4037738"},
        {3.2, "192 6659118 2276391 37996 704 303617452658 2785195"},
        {3.7, "174 4875566 1484701 18026 0 248555529208 1143964"},
        {3.8, "110 1714203 542453 6170 0 95805342328 1005261"},
        {6.45, "111 1727967 568982 6836 0 97666774366 1119875"}};
    for (const auto& [seconds, expected] : rows) {
        std::valarray<double> sums(6);
        double place = 0;
        for (const auto& [x, y, radius, ring, colour, alpha] : TitleScene{}.at(seconds))
            sums +=
                ++place * std::valarray<double>{
                              x, y, radius, ring, double(colour.pixel() & 0xFFFFFF), double(alpha)};
        std::string figures = std::to_string(std::llround(place));
        for (const double sum : sums) figures.append(" ").append(std::to_string(std::llround(sum)));
        EXPECT_EQ(figures, expected) << seconds;
    }
}

}  // namespace skylob::test
