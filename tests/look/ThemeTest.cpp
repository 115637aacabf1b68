#include "look/Theme.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace skylob::test {

TEST(Theme, FillsInStyleSheetsAndRefusesOtherNames) {
    EXPECT_EQ(
        withTheme("{ font: @text-size @families; color: @line-off;@line }"),
        "{ font: 13px \"Noto Sans\", \"Open Sans\", \"DejaVu Sans\"; color: #222C44;#35425F }");
    for (const char* wrong : {"@lines", "@", "@Line"})
        EXPECT_THROW(withTheme(wrong), std::out_of_range) << wrong;
}

}  // namespace skylob::test
