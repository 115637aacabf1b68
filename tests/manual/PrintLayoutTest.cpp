#include <gtest/gtest.h>

#include "manual/PrintLayout.h"

namespace skylob::test {

/// A font of 10 bytes an inch and 5 lines an inch: 65 bytes a line; the first line of the text is
/// at 1.4, the last paragraph may begin at 7.8, the last line at 8.6.
static PrintMeasures coarseFont() {
    return {[](std::string_view text) { return static_cast<double>(text.size()) / 10; }, 0.2};
}

static std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    for (const PrintedPage& page : layOutPages("", text, coarseFont()))
        for (std::size_t i = 2; i < page.size(); ++i) lines.push_back(page[i].text);
    return lines;
}

static std::string repeated(int times, const std::string& text) {
    std::string all;
    while (times-- > 0) all += text;
    return all;
}

TEST(PrintLayout, PlacesHeaderNumberAndParagraphsInInches) {
    const auto page = layOutPages("Title", "One.\r\n\r\nTwo.\n", coarseFont()).at(0);
    EXPECT_EQ(page.at(0), (PrintedText{1, 1, "Title"}));
    EXPECT_NEAR(page.at(1).x, 6.7, 1e-9);  // ends at 7.5
    EXPECT_EQ(page.at(2), (PrintedText{1, 1.4, "One."}));
    EXPECT_NEAR(page.at(3).y, 1.8, 1e-9);
    // The number gives way to a long header. An empty text still has its page.
    EXPECT_NEAR(layOutPages(repeated(60, "x"), "", coarseFont()).at(0)[1].x, 7.1, 1e-9);
}

TEST(PrintLayout, BreaksLinesAtBlanksAndWordsOnlyIfTheyMust) {
    using Lines = std::vector<std::string>;
    const std::string x32 = repeated(32, "x"), x33 = x32 + "x";
    EXPECT_EQ(linesOf(x32 + " " + x32), (Lines{x32 + " " + x32}));   // 65
    EXPECT_EQ(linesOf(x33 + "  " + x32 + "  "), (Lines{x33, x32}));  // too wide by one
    EXPECT_EQ(linesOf("  in  dented \n   "), (Lines{"  in  dented"}));
    EXPECT_EQ(linesOf(x33 + x33 + " y"), (Lines{x33 + x32, "x y"}));  // 66 and more
    EXPECT_EQ(linesOf("a " + x33 + x33), (Lines{"a", x33 + x32, "x"}));
    // A character of two bytes stays in one piece.
    EXPECT_EQ(linesOf(x32 + x32 + "\u00E9"), (Lines{x32 + x32, "\u00E9"}));
}

TEST(PrintLayout, EndsPagesBetween8And8Point8Inches) {
    // One paragraph of 40 lines: 37 lines from 1.4 to 8.8.
    auto pages = layOutPages("", repeated(40, repeated(64, "x") + " "), coarseFont());
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_NEAR(pages[0].back().y, 8.6, 1e-9);
    EXPECT_EQ(pages[1].size(), 2 + 3U);
    EXPECT_EQ(pages[1][1].text, "(page 2)");
    EXPECT_NEAR(pages[1][2].y, 1.4, 1e-9);
    // Paragraphs of one line: 33 of them from 1.4 to 8.0. Here the first two lines are empty.
    pages = layOutPages("", "\n\n" + repeated(31, "x\n") + "y", coarseFont());
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_NEAR(pages[0][2].y, 1.8, 1e-9);
    EXPECT_NEAR(pages[0].back().y, 7.8, 1e-9);
    EXPECT_EQ(pages[1].size(), 2 + 1U);
    // Empty lines between two pages are gone.
    pages = layOutPages("", repeated(32, "x\n") + "\n\n\ny", coarseFont());
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_NEAR(pages[1].at(2).y, 1.4, 1e-9);
}

TEST(PrintLayout, BearsAFontThatIsTooLarge) {
    const PrintMeasures huge{[](std::string_view) { return 7.0; }, 9.0};
    const auto pages = layOutPages("H", "ab", huge);
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0][2].text, "a");
    EXPECT_EQ(pages[1][2].text, "b");
}

}  // namespace skylob::test
