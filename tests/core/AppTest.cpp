#include <gtest/gtest.h>

#include "app/CommandLine.h"
#include "app/Fade.h"
#include "app/OpenLink.h"
#include "app/Pacer.h"
#include "app/Settings.h"
#include "app/StringTable.h"
#include "app/WaveImage.h"
#include "players/SetResult.h"
#include "tests/support/Fakes.h"

namespace skylob::test {
namespace {

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

TEST(Wait, RoundsToMillisecondsHalvesToEven) {
    EXPECT_EQ(waitMilliseconds(0.25f), 250);
    EXPECT_EQ(waitMilliseconds(0.0625f), 62);   // 62.5
    EXPECT_EQ(waitMilliseconds(0.1875f), 188);  // 187.5
}

TEST(SetScore, CountsRoundsAndKillsAndGivesTiesToSide2) {
    basSkylob shared;
    shared.RoundsWon = {2, 3};
    shared.TotalKills = {23, 2};
    EXPECT_EQ(SetScore(shared, 1), 21);  // 14 + 7
    EXPECT_EQ(SetScore(shared, 2), 21);  // 21 + 0
    EXPECT_EQ(setWinner(shared), 2);
    shared.TotalKills[1] = 24;
    EXPECT_EQ(setWinner(shared), 1);
}

CommandLine parse(std::initializer_list<std::string_view> arguments) {
    return parseCommandLine(std::span{arguments.begin(), arguments.size()});
}

TEST(CommandLine, TakesItsOptionsAndRefusesTheRest) {
    using Request = CommandLine::Request;
    EXPECT_EQ(parse({}).request, Request::Play);
    EXPECT_EQ(parse({"--help"}).request, Request::Help);
    EXPECT_EQ(parse({"--seed", "5", "--version"}).request, Request::Version);
    EXPECT_EQ(parse({"--seed", "18446744073709551615"}).seed, 18446744073709551615u);
    EXPECT_EQ(parse({"--data-dir", "my folder"}).dataDir, "my folder");
    EXPECT_TRUE(parse({"--user-data"}).userData);
    EXPECT_FALSE(parse({}).seed || parse({}).dataDir || parse({}).userData);
    for (const auto& refused : std::initializer_list<CommandLine>{
             parse({"--seed"}), parse({"--seed", "-1"}), parse({"--seed", "1x"}),
             parse({"--data-dir", ""}), parse({"--fast"}), parse({"file"}), parse({""}),
             parse({"--user-data", "--data-dir", "x"})}) {
        EXPECT_EQ(refused.request, Request::Refused);
        EXPECT_FALSE(refused.error.empty());
        EXPECT_EQ(refused.error.find('\n'), std::string::npos);
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
    EXPECT_EQ(image->rate, 11025);
    EXPECT_EQ(image->bitsPerSample, 8);
    EXPECT_FALSE(image->factSamples);
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
        return shown;
    };
    EXPECT_EQ(opacities(kInvisible, kOpaque, kFadeStep),
              (std::vector{20, 40, 60, 80, 100, 120, 140, 160, 180, 200, 220, 240, 255}));
    EXPECT_EQ(opacities(kOpaque, kInvisible, kFadeStep),
              (std::vector{235, 215, 195, 175, 155, 135, 115, 95, 75, 55, 35, 15, 0}));
    const std::vector<int> slow = opacities(kOpaque, kInvisible, kSlowFadeStep);
    EXPECT_EQ(slow.size(), 26U);
    EXPECT_EQ(slow[24], 5);
}

TEST(OpenLink, PutsTheSchemeInFrontAndReportsOnlyAFailedCall) {
    Log log;
    QueuedBoxes boxes{log};
    RecordingLinks links;
    OpenLink(LinkKind::Mail, "ann@example.com", links, boxes);
    OpenLink(LinkKind::Mail, "", links, boxes);
    OpenLink(LinkKind::Web, "", links, boxes);
    EXPECT_TRUE(log.empty());
    links.works = false;
    boxes.answers = {BoxAnswer::Ok};
    OpenLink(LinkKind::Web, "http://example.com", links, boxes);
    EXPECT_EQ(links.targets, (Log{"mailto:ann@example.com", "mailto:skylob@example.org",
                                  "http://www.example.org/skylob", "http://http://example.com"}));
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

}  // namespace
}  // namespace skylob::test
