#include "players/Ranking.h"

#include <gtest/gtest.h>

#include "tests/support/PlayersRig.h"

namespace skylob::test {

static PlayerRecord played(int sets, int won, int average) {
    using Number = std::int16_t;
    return {PlayerRecord::blankName(), Number(sets), Number(won), Number(average)};
}

TEST(RankingKey, IsTheTabledOne) {
    const std::pair<PlayerRecord, const char*> keys[] = {
        {played(0, 5, 77), "0999.99"},    {played(-3, 5, 77), "0999.99"},
        {played(1, 0, 30), "1000.78"},    {played(4, 3, 20), "0992.06"},
        {played(10, 9, 40), "0983.07"},   {played(2, 1, 0), "1003.08"},
        {played(1, 1, 1100), "-0097.93"}, {played(20000, 20000, 2), "40998.07"}};
    for (const auto& [record, text] : keys) EXPECT_EQ(formatKey(rankingKey(record)), text);
    EXPECT_EQ(rankingKey(played(1, 1, 30)), 972.075F);
    EXPECT_EQ(formatKey(1000.125F) + formatKey(999.996F) + formatKey(-0.004F),
              "1000.131000.000000.00");
}

TEST(CountSet, KeepsTheAverage) {
    const std::tuple<PlayerRecord, int, PlayerRecord> cases[] = {
        {played(0, 0, 0), 29, played(1, 1, 30)},          // no scores count as 1
        {played(3, 1, 20), 40, played(4, 2, 25)},         // 100 / 4
        {played(3, 1, 20), 43, played(4, 2, 25)},         // 103 / 4 is cut
        {played(2, 0, -9), 6, played(3, 1, 2)},           // below 1 counts as 1: 7 / 3
        {played(200, 9, 163), 68, played(201, 10, 162)},  // 32,600 still fits: 32,668 / 201
        {played(200, 9, 164), 68, played(201, 10, 0)},    // 32,800 turns negative: 69 / 201
        {played(400, 9, 170), 70, played(401, 10, 6)},    // 68,000 is 2,464: 2,534 / 401
        {played(32767, 32767, 0), 50, played(-32768, -32768, 51)}};
    for (auto [record, score, afterwards] : cases) {
        countSet(record, score, true);
        EXPECT_EQ(record, afterwards) << record.SetsPlayed << ", " << record.AverageScore;
    }
    PlayerRecord loser = played(3, 1, 20);
    countSet(loser, 40, false);
    EXPECT_EQ(loser, played(4, 1, 25));
}

struct RecordSetResultsTest : testing::Test, PlayersRig {
    RecordSetResultsTest() {
        finishSet({"Ann", "Bob"}, {3, 2}, {248, 131});  // scores of 82 + 21 and 43 + 14
    }

    /// Records the set in a list of these bytes and returns what the list is then.
    std::string recordIn(const std::string& list) {
        put(list);
        RecordSetResults(file, shared);
        EXPECT_EQ(folder.content(), "Skylob.Data ");
        return bytes();
    }
};

TEST_F(RecordSetResultsTest, UpdatesBothPlayersAndRanksAll) {
    // Ann: (1 + 103) / 1 = 104, one set won: 1000 - 104 + 1.05 + 1.025 = 0898.08
    // Bob: (120 + 57) / 5 = 35, two of five: 1000 - (2.01 / 5.01) x 35 + 7.075 = 0993.03
    // Cyd: one of two, 10: 1000 - (1.01 / 2.01) x 10 + 3.075 = 0998.05
    // Dan: none of one, 30: 1000.78, below Eve, who has never played
    EXPECT_EQ(recordIn(record("Cyd", 2, 1, 10, 1, 7) + record("Dan", 1, 0, 30, 2) +
                       record("Bob", 4, 2, 30, 3, 9) + record("Eve") + ann),
              record("Ann", 1, 1, 104, 1) + record("Bob", 5, 2, 35, 2, 9) +
                  record("Cyd", 2, 1, 10, 3, 7) + record("Eve") + record("Dan", 1, 0, 30, 5));
    EXPECT_EQ(file.PlayerCount, 5);
    EXPECT_EQ(files.done.find("write"), std::string::npos);  // replaced, and nothing besides
}

TEST_F(RecordSetResultsTest, KeepsTheOrderOfEqualTextsAndOfAllWhoseNamesDiffer) {
    // Played alike, first Fay, then Gil. The names are exact; blanks at their ends do not count.
    shared.PlayerName = {"  ANN ", "Al Fox"};
    EXPECT_EQ(recordIn(ann + record("Fay", 2, 1, 10, 0) + record("Gil", 2, 1, 10, 0) +
                       record(" Al Fox") + record("Zoe")),
              record("Fay", 2, 1, 10, 1) + record("Gil", 2, 1, 10, 2) + ann + record("Zoe") +
                  // (1 + 57) / 1 = 58, lost: 1000 - (0.01 / 1.01) x 58 + 1.075 = 1000.50
                  record(" Al Fox", 1, 0, 58, 5));
}

TEST_F(RecordSetResultsTest, ComparesTextsToTheirLastCharacter) {
    // "-16425.44", "-16425.41", "-16425.43"
    EXPECT_EQ(recordIn(record("Ida", 2, 226, 157, 0) + record("Jon", 3, 244, 218, 0) +
                       record("Kay", 1, 100, 177, 0)),
              record("Jon", 3, 244, 218, 1) + record("Kay", 1, 100, 177, 2) +
                  record("Ida", 2, 226, 157, 3));
}

TEST_F(RecordSetResultsTest, LeavesASinglePlayerUnranked) {
    EXPECT_EQ(recordIn(ann), record("Ann", 1, 1, 104, 0));
    EXPECT_EQ(recordIn(""), "");
    // It needs no temporary file.
    putBytes(tempPath, "old");
    put(bob);
    RecordSetResults(file, shared);
    EXPECT_EQ(bytes() + bytesOf(tempPath), record("Bob", 1, 0, 58, 0) + "old");
    files.failing = "sync Skylob.Data";
    EXPECT_THROW(recordIn(ann), FileError);
}

TEST_F(RecordSetResultsTest, LosesNoResultWhenTheNewOrderCannotBeStored) {
    std::filesystem::create_directory(tempPath);
    put(bob + cyd + ann);
    EXPECT_THROW(RecordSetResults(file, shared), FileError);
    EXPECT_EQ(bytes(), record("Bob", 1, 0, 58, 0) + cyd + record("Ann", 1, 1, 104, 0));
}

}  // namespace skylob::test
