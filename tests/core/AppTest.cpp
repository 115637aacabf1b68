#include <gtest/gtest.h>

#include "app/CommandLine.h"
#include "app/CountedWait.h"
#include "app/Fade.h"
#include "app/OpenLink.h"
#include "app/PrintLayout.h"
#include "app/Settings.h"
#include "app/StringTable.h"
#include "app/WaveImage.h"
#include "tests/support/Fakes.h"

namespace skylob::test {

using namespace std::literals;

TEST(Settings, MakeSenseOfAnyText) {
    struct Row {
        const char* text;
        int gameSpeed, numRounds, screenSize;
        bool flagOrOn, flagOrOff;
    };
    for (const Row& row :
         {Row{"", 50, 10, 2, true, false}, Row{"0", 50, 10, 2, false, false},
          Row{"1", 1, 5, 1, true, true}, Row{"2", 2, 10, 2, true, false},
          Row{"3", 3, 20, 3, true, false}, Row{" 1 ", 1, 5, 1, true, true},
          Row{"99", 99, 10, 2, true, false}, Row{"100", 99, 10, 2, true, false},
          Row{"-7", 1, 10, 2, true, false}, Row{"0.4", 50, 10, 2, true, false},
          Row{"98.5", 98, 10, 2, true, false}, Row{"1e300", 99, 10, 2, true, false},
          Row{"60 mph", 50, 10, 2, true, false}, Row{"nan", 50, 10, 2, true, false}}) {
        SCOPED_TRACE(row.text);
        MemorySettings store;
        for (const char* key : {"GameSpeed", "NumRounds", "ScreenSize", "Flag"})
            store.save(key, row.text);
        EXPECT_EQ(settings::readGameSpeed(store), row.gameSpeed);
        EXPECT_EQ(settings::roundsForChoice(settings::readRoundsChoice(store)), row.numRounds);
        EXPECT_EQ(settings::readScreenSize(store), row.screenSize);
        EXPECT_EQ(settings::readFlag(store, "Flag", true), row.flagOrOn);
        EXPECT_EQ(settings::readFlag(store, "Flag", false), row.flagOrOff);
    }
}

TEST(Settings, FadeOnlyIfTheStoreSaysTrue) {
    MemorySettings store;
    EXPECT_FALSE(settings::readFadeStatus(store));
    for (const auto& [stored, on] : {std::pair{" TRUE ", true},
                                     {"-1", true},
                                     {"False", false},
                                     {"0", false},
                                     {"", false},
                                     {"yes", false}}) {
        store.save("FadeStatus", stored);
        EXPECT_EQ(settings::readFadeStatus(store), on) << stored;
    }
}

static CommandLine parse(std::initializer_list<std::string_view> arguments) {
    return parseCommandLine(std::span{arguments.begin(), arguments.size()});
}

TEST(CommandLine, TakesItsOptionsAndRefusesTheRest) {
    using Request = CommandLine::Request;
    EXPECT_EQ(parse({}).request, Request::Play);
    EXPECT_EQ(parse({"--help"}).request, Request::Help);
    EXPECT_EQ(parse({"--seed", "5", "--version"}).request, Request::Version);
    EXPECT_EQ(parse({"--seed", "18446744073709551615"}).seed, 18446744073709551615u);
    EXPECT_EQ(parse({"--data-dir", "my folder"}).dataDir, "my folder");
    EXPECT_TRUE(parse({"--user-data"}).userData && !parse({}).userData);
    for (const auto& refused : std::initializer_list<CommandLine>{
             parse({"--seed"}), parse({"--seed", "-1"}), parse({"--seed", "1x"}),
             parse({"--data-dir", ""}), parse({"--fast"}), parse({"file"}), parse({""}),
             parse({"--user-data", "--data-dir", "x"})}) {
        EXPECT_EQ(refused.request, Request::Refused);
    }
}

TEST(WaveImage, IsReadChunkByChunk) {
    const auto read = [](std::string_view text) {
        return readWaveImage(std::as_bytes(std::span{text.data(), text.size()}));
    };
    const auto header = "RIFF\x3c\0\0\0WAVE"s;
    const auto format = "fmt \x10\0\0\0\x01\0\x01\0\x11\x2b\0\0\x11\x2b\0\0\x01\0\x08\0"s;
    const auto odd = "note\x03\0\0\0abc\0"s;  // an unknown chunk, padded to a whole word
    const auto data = "data\x02\0\0\0\x80\x7f"s;
    const auto file = header + odd + format + data;
    const auto image = read(file);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->formatTag, 1);
    EXPECT_EQ(image->rate, 11025);
    EXPECT_EQ(image->bitsPerSample, 8);
    EXPECT_FALSE(image->factSamples);
    EXPECT_EQ(read(header + "fact\x04\0\0\0\x02\1\0\0"s + format + data)->factSamples, 258u);
    EXPECT_FALSE(read(header + "fact\x03\0\0\0\x02\1\0\0"s + format + data)->factSamples);
    ASSERT_EQ(image->data.size(), 2u);
    EXPECT_EQ(image->data[0], std::byte{0x80});
    for (const auto& wrong :
         {""s, "RIFX" + header.substr(4) + format + data, header + data, header + format,
          header + format + data.substr(0, 9), header + format + "data\xff\xff\xff\xff"})
        EXPECT_FALSE(read(wrong)) << wrong;
}

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

TEST(CountedWait, LastsHalfANanosecondForEachCount) {
    const auto begin = std::chrono::steady_clock::now();
    CountedWait wait;
    wait.start();
    wait.run(40'000'000);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 20ms);
}

TEST(OpenLink, PutsTheSchemeInFrontAndReportsOnlyAFailedCall) {
    Log log;
    QueuedBoxes boxes{log};
    RecordingLinks links;
    OpenLink(LinkKind::Mail, "ann@example.com", links, boxes);
    OpenLink(LinkKind::Mail, "", links, boxes);
    EXPECT_TRUE(log.empty());
    links.works = false;
    boxes.answers = {BoxAnswer::Ok};
    OpenLink(LinkKind::Web, "", links, boxes);
    EXPECT_EQ(links.targets, (Log{"mailto:ann@example.com", "mailto:skylob@example.org",
                                  "http://www.example.org/skylob"}));
    EXPECT_EQ(boxes.shown, Log{"Error: Could not establish an internet connection! (!)"});
}

TEST(StringTable, TakesNumberedLinesAndNothingElse) {
    StringTable table;
    table.addLines("# for the reader\n\n1000  two  blanks \n12 #\n7 last");
    EXPECT_EQ(table.text(1000), " two  blanks ");
    EXPECT_EQ(table.text(12), "#");
    EXPECT_EQ(table.text(7), "last");
    EXPECT_THROW(table.text(8), std::out_of_range);
    for (const char* wrong : {"12 again", "text", "13", "13\ttext", " 13 text"})
        EXPECT_THROW(table.addLines(wrong), std::invalid_argument) << wrong;
}

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
