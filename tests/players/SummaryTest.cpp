#include "players/Summary.h"

#include <gtest/gtest.h>

#include "players/Commentary.h"
#include "players/SetResult.h"
#include "tests/support/PlayersRig.h"

namespace skylob::test {

using namespace std::chrono;

TEST(DateTimeText, IsTheSameEverywhere) {
    const auto at = [](sys_days day, milliseconds time) {
        return dateTimeText(DateTime{day.time_since_epoch() + time});
    };
    EXPECT_EQ(at(2026y / 11 / 21, 21h + 41min + 59s), "11/21/26 - 9:41pm");
    EXPECT_EQ(at(2009y / 1 / 2, 0h + 5min), "01/02/09 - 12:05am");
    EXPECT_EQ(at(2000y / 12 / 31, 12h), "12/31/00 - 12:00pm");
}

TEST(RoundSound, FollowsTheSecondsAgainstTheComputerAlone) {
    const auto sounds = [](const char* player2, int winner, bool selfHit) {
        basSkylob shared;
        shared.PlayerName = {"Ann", player2};
        shared.Winner = winner;
        shared.SelfHit = selfHit;
        std::string heard;
        for (const int second : {0, 4, 5, 9, 10, 19, 20, 29, 30, 59})
            heard.append(roundSound(shared, second).value_or("-")).append(" ");
        return heard;
    };
    EXPECT_EQ(sounds("Computer", 1, false), "contempt contempt - - - - - - - - ");
    EXPECT_EQ(sounds("Computer", 2, false),
              "gameover gameover gameover gameover woody woody beep beep - - ");
    EXPECT_EQ(sounds("Computer", 2, true), "- - - - - - - - - - ");
    EXPECT_EQ(sounds("Bob", 2, false), "- - - - - - - - - - ");
}

TEST(SetReckoning, IsShownAsItIsReckonedAndSaysWhoWon) {
    struct Row {
        PerSide<int> rounds, kills;
        const char *left, *right, *winner;
    };
    const Row rows[] = {
        {{5, 0},
         {500, 99},
         "5 × 7 + 500 ÷ 3 = 201",
         "0 × 7 + 99 ÷ 3 = 33",
         "Ann beats Bob by 201 to 33."},
        {{0, 1}, {2, 3}, "0 × 7 + 2 ÷ 3 = 0", "1 × 7 + 3 ÷ 3 = 8", "Bob beats Ann by 8 to 0."},
        {{3, 2},
         {101, 122},
         "3 × 7 + 101 ÷ 3 = 54",
         "2 × 7 + 122 ÷ 3 = 54",
         "54 to 54: a tie goes to side 2, Bob."},
        // Truncated towards 0.
        {{0, 0},
         {-5, -6},
         "0 × 7 + -5 ÷ 3 = -1",
         "0 × 7 + -6 ÷ 3 = -2",
         "Ann beats Bob by -1 to -2."},
    };
    for (const auto& [rounds, kills, left, right, winner] : rows) {
        basSkylob shared;
        shared.PlayerName = {"Ann", "Bob"};
        shared.RoundsWon = rounds;
        shared.TotalKills = kills;
        EXPECT_EQ(setReckoning(shared, 1), left);
        EXPECT_EQ(setReckoning(shared, 2), right);
        EXPECT_EQ(whoWonTheSet(shared), winner);
    }
}

TEST(RoundReason, FollowsFromTheLastShell) {
    using Flag = bool basSkylob::*;
    const std::pair<Flag, const char*> rows[] = {
        {&basSkylob::DirectHit, "Bob's shell hit Ann's piece."},
        {&basSkylob::SelfHit, "Ann's shell hit Ann's own piece."},
        {&basSkylob::NearMiss, "Bob's shell came down beside Ann, who had no men left."},
        {nullptr, "Ann had no men left to shoot."}};
    for (const auto& [flag, reason] : rows) {
        basSkylob shared;
        shared.PlayerName = {"Ann", "Bob"};
        if (flag) shared.*flag = true;
        EXPECT_EQ(whyRoundIsOver(shared), "");
        shared.Winner = 2;
        EXPECT_EQ(whyRoundIsOver(shared), reason);
    }
}

struct SummaryTest : testing::Test, PlayersRig {
    SummaryTest() {
        strings.addLines(
            "2000 self\n2023 self\n2200 lost\n2300 one\n2313 one\n2700 set\n2711 set\n");
        finishSet({"Ann", "Bob"}, {3, 2}, {101, 122});  // 33 + 21 and 40 + 14: a tie of 54
        shared.RoundShots[1] = 1;
    }

    ScriptedRandom random{{}, 0};
    StringTable strings;
    SummaryPorts ports{clock, random, sounds, boxes, strings, file};
};

TEST_F(SummaryTest, OfARoundRecordsNothing) {
    put(ann + bob);
    Summary summary{shared, SummaryKind::Round, ports};
    summary.Form_Activate();
    EXPECT_EQ(summary.heading() + summary.labelComputerSays() + summary.labelDateTime(),
              "Ann wins this Round!one01/01/70 - 12:00am");
    EXPECT_EQ(summary.reason(), "Bob had no men left to shoot.");
    summary.cmdOkay_Click();
    EXPECT_EQ(bytes(), ann + bob);
    EXPECT_TRUE(log.empty());
    shared.PlayerName[2] = "Computer";
    summary.Form_Activate();
    EXPECT_EQ(log, Log{"sound contempt"});
}

TEST_F(SummaryTest, OfASetDecidesAndRecordsIt) {
    put(ann + bob);
    shared.SetOver = shared.SelfHit = true;
    boxes.answers = {BoxAnswer::Ok};
    Summary summary{shared, SummaryKind::Set, ports};
    summary.Form_Activate();
    EXPECT_EQ(summary.heading() + summary.labelComputerSays() + summary.reason(),
              "Bob wins this Set!set54 to 54: a tie goes to side 2, Bob.");
    summary.cmdOkay_Click();
    EXPECT_EQ(bytes(), record("Bob", 1, 1, 55, 1) + record("Ann", 1, 0, 55, 2));
    EXPECT_EQ(events(), (Log{"sound set", "box Players Update"}));
    EXPECT_EQ(boxes.shown[0].find("Players Update: Ann & Bob--\r\nYour overall rating"), 0U);
    put(bob);
    summary.cmdOkay_Click();  // no box about a list of one
    EXPECT_EQ(bytes(), record("Bob", 1, 1, 55, 0));
}

TEST(Commentary, FitsTheWinnerAndTheShots) {
    StringTable numbers, remarks;  // each text of the one is its number
    remarks.addLines(bytesOf(SKYLOB_RESOURCES "/strings/commentary.txt"));
    for (int i = 2000; i < 2800; ++i) numbers.addLines(std::to_string(i) + " " + std::to_string(i));
    basSkylob shared;
    std::string blocks;
    const auto addBlock = [&] {
        ScriptedRandom random{{0., 0.9999999}};
        for (int i = 0; i < 2; ++i)
            blocks += drawRemark(shared, numbers, random).value_or("none") + " ";
        for (double r = 0; r < 1; r += 0.01) {
            random.script({r});
            EXPECT_NE(drawRemark(shared, remarks, random), "");
        }
    };
    shared.PlayerName = {"Ann", "Bob"};
    shared.Winner = 2;
    for (shared.RoundShots = {9, 0}; shared.RoundShots[2] <= 5; ++shared.RoundShots[2]) addBlock();
    EXPECT_EQ(blocks, "none none 2300 2313 2400 2418 2500 2521 2600 2622 2600 2622 ");
    blocks.clear();
    shared.PlayerName[2] = "Computer";
    addBlock();
    shared.Winner = 1;
    addBlock();
    shared.SelfHit = true;
    addBlock();
    shared.SetOver = true;
    addBlock();
    EXPECT_EQ(blocks, "2100 2134 2200 2219 2000 2023 2700 2711 ");
}

}  // namespace skylob::test
