#include "look/Theme.h"

#include <gtest/gtest.h>

#include "look/Contrast.h"

#include <stdexcept>

namespace skylob::test {

TEST(Theme, FillsInStyleSheetsAndRefusesOtherNames) {
    EXPECT_EQ(
        withTheme("{ font: @text-size @families; color: @line-off;@line }"),
        "{ font: 13px \"Noto Sans\", \"Open Sans\", \"DejaVu Sans\"; color: #222C44;#35425F }");
    for (const char* wrong : {"@lines", "@", "@Line"})
        EXPECT_THROW(withTheme(wrong), std::out_of_range) << wrong;
}

TEST(Contrast, TellsColoursApartAsEyesDo) {
    const std::tuple<std::uint32_t, std::uint32_t, double> rows[] = {
        {0x000000, 0xFFFFFF, 21},    {0x777777, 0xFFFFFF, 4.478}, {0xFFFFFF, 0x767676, 4.542},
        {0xFF0000, 0xFFFFFF, 3.998}, {0x0000FF, 0x000000, 2.444}, {0x0A0A0A, 0x000000, 1.061}};
    for (const auto& [one, other, ratio] : rows)
        EXPECT_NEAR(contrast(Colour::fromRgb(one), Colour::fromRgb(other)), ratio, 0.001) << one;
}

}  // namespace skylob::test
