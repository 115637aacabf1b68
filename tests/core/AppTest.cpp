#include <gtest/gtest.h>

#include "app/CommandLine.h"
#include "app/Pacer.h"
#include "app/Settings.h"
#include "app/WaveImage.h"
#include "battle/HeadlessBattle.h"
#include "players/SetResult.h"

namespace skylob {
namespace {

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
          Row{"fast", 50, 10, 2, true, false}, Row{"60 mph", 50, 10, 2, true, false},
          Row{"nan", 50, 10, 2, true, false}}) {
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

TEST(Wait, RoundsToMillisecondsHalvesToEven) {
    EXPECT_EQ(waitMilliseconds(0), 0);
    EXPECT_EQ(waitMilliseconds(0.25f), 250);
    EXPECT_EQ(waitMilliseconds(1), 1000);
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
             parse({"--seed", ""}), parse({"--data-dir"}), parse({"--data-dir", ""}),
             parse({"--fast"}), parse({"file"}), parse({""}),
             parse({"--user-data", "--data-dir", "x"})}) {
        EXPECT_EQ(refused.request, Request::Refused);
        EXPECT_FALSE(refused.error.empty());
        EXPECT_EQ(refused.error.find('\n'), std::string::npos);
    }
}

std::vector<std::byte> bytes(std::string_view text) {
    const auto view = std::as_bytes(std::span{text.data(), text.size()});
    return {view.begin(), view.end()};
}

TEST(WaveImage, IsReadChunkByChunk) {
    using namespace std::literals;
    const auto header = "RIFF\x3c\0\0\0WAVE"s;
    const auto format = "fmt \x10\0\0\0\x01\0\x01\0\x11\x2b\0\0\x11\x2b\0\0\x01\0\x08\0"s;
    const auto odd = "note\x03\0\0\0abc\0"s;  // an unknown chunk, padded to a whole word
    const auto data = "data\x02\0\0\0\x80\x7f"s;
    const auto file = bytes(header + odd + format + data);
    const auto image = readWaveImage(file);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->formatTag, 1);
    EXPECT_EQ(image->channels, 1);
    EXPECT_EQ(image->rate, 11025);
    EXPECT_EQ(image->bitsPerSample, 8);
    EXPECT_FALSE(image->factSamples);
    ASSERT_EQ(image->data.size(), 2u);
    EXPECT_EQ(image->data[0], std::byte{0x80});

    EXPECT_FALSE(readWaveImage(bytes("")));
    EXPECT_FALSE(readWaveImage(bytes("RIFX" + header.substr(4) + format + data)));
    EXPECT_FALSE(readWaveImage(bytes(header + data)));
    EXPECT_FALSE(readWaveImage(bytes(header + format)));
    EXPECT_FALSE(readWaveImage(bytes(header + format + data.substr(0, 9))));  // cut short
    EXPECT_FALSE(readWaveImage(bytes(header + format + "data\xff\xff\xff\xff"s)));
}

}  // namespace
}  // namespace skylob
