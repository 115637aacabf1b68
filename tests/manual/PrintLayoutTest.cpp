#include <gtest/gtest.h>

#include "manual/PrintLayout.h"

namespace skylob::test {

/// In a font of 10 bytes an inch and 5 lines an inch: 65 bytes a line; the first line of the text
/// is at 1.4, the last paragraph may begin at 7.8, the last line at 8.6.
static std::vector<PrintedPage> pagesOf(std::string_view text, std::string_view header = "") {
    const auto width = [](std::string_view line) { return static_cast<double>(line.size()) / 10; };
    return layOutPages(header, text, {width, 0.2});
}

static std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    for (const PrintedPage& page : pagesOf(text))
        for (std::size_t i = 2; i < page.size(); ++i) lines.push_back(page[i].text);
    return lines;
}

static std::string repeated(int times, const std::string& text) {
    return times == 0 ? "" : text + repeated(times - 1, text);
}

TEST(PrintLayout, PlacesHeaderNumberAndParagraphsInInches) {
    const auto page = pagesOf("One.\r\n\r\nTwo.\n", "Title").at(0);
    EXPECT_EQ(page.at(0), (PrintedText{1, 1, "Title"}));
    EXPECT_NEAR(page.at(1).x, 6.7, 1e-9);  // ends at 7.5
    EXPECT_EQ(page.at(2), (PrintedText{1, 1.4, "One."}));
    EXPECT_NEAR(page.at(3).y, 1.8, 1e-9);
    // The number gives way to a long header. An empty text still has its page.
    EXPECT_NEAR(pagesOf("", repeated(60, "x")).at(0)[1].x, 7.1, 1e-9);
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
    // The text, the first page's first and last line, how many lines are on the second.
    const std::tuple<std::string, double, double, std::size_t> cases[] = {
        // One paragraph of 40 lines: 37 lines from 1.4 to 8.8.
        {repeated(40, repeated(64, "x") + " "), 1.4, 8.6, 3},
        // Paragraphs of one line: 33 of them from 1.4 to 8.0. Here the first two lines are empty.
        {"\n\n" + repeated(31, "x\n") + "y", 1.8, 7.8, 1},
        // Empty lines between two pages are gone.
        {repeated(32, "x\n") + "\n\n\ny", 1.4, 7.6, 1}};
    for (const auto& [text, firstLine, lastLine, linesBehind] : cases) {
        const auto pages = pagesOf(text);
        ASSERT_EQ(pages.size(), 2U) << text;
        EXPECT_NEAR(pages[0].at(2).y, firstLine, 1e-9) << text;
        EXPECT_NEAR(pages[0].back().y, lastLine, 1e-9) << text;
        EXPECT_EQ(pages[1].size(), 2 + linesBehind) << text;
        EXPECT_EQ(pages[1].at(1).text, "(page 2)") << text;
        EXPECT_NEAR(pages[1].at(2).y, 1.4, 1e-9) << text;
    }
    EXPECT_EQ(pagesOf(repeated(33, "x\n") + "\n").size(), 1U);  // no blank page behind them
}

TEST(PrintLayout, BearsAFontThatIsTooLarge) {
    const auto pages = layOutPages("H", "ab", {[](std::string_view) { return 7.0; }, 9.0});
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0][2].text, "a");
    EXPECT_EQ(pages[1][2].text, "b");
}

}  // namespace skylob::test
