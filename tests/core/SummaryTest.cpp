#include "players/Summary.h"

#include <gtest/gtest.h>

#include "players/Commentary.h"
#include "tests/support/Fakes.h"
#include "tests/support/PlayersRig.h"

namespace skylob::test {
namespace {

using namespace std::chrono;
using namespace std::string_literals;

TEST(DateTimeText, IsTheSameEverywhere) {
    const auto at = [](sys_days day, milliseconds time) {
        return dateTimeText(DateTime{day.time_since_epoch() + time});
    };
    EXPECT_EQ(at(2026y / 11 / 21, 21h + 41min + 59s), "11/21/26 - 9:41pm");
    EXPECT_EQ(at(2009y / 1 / 2, 0h + 5min), "01/02/09 - 12:05am");
    EXPECT_EQ(at(2000y / 12 / 31, 12h), "12/31/00 - 12:00pm");
}

TEST(RoundSound, FollowsTheSecondsAgainstTheComputerAlone) {
    const auto sounds = [](basSkylob shared) {
        std::string heard;
        for (const int second : {0, 4, 5, 9, 10, 19, 20, 29, 30, 59})
            heard.append(roundSound(shared, second).value_or("-")).append(" ");
        return heard;
    };
    basSkylob shared;
    shared.PlayerName = {"Ann", "Computer"};
    shared.Winner = 1;
    EXPECT_EQ(sounds(shared), "contempt contempt - - - - - - - - ");
    shared.Winner = 2;
    EXPECT_EQ(sounds(shared), "gameover gameover gameover gameover woody woody beep beep - - ");
    shared.SelfHit = true;
    EXPECT_EQ(sounds(shared), "- - - - - - - - - - ");
    shared.SelfHit = false;
    shared.PlayerName[2] = "Bob";
    EXPECT_EQ(sounds(shared), "- - - - - - - - - - ");
}

struct SummaryTest : testing::Test, PlayersRig {
    SummaryTest() {
        strings.addLines("2000 self\n2023 self\n2300 one\n2313 one\n2700 set\n2711 set\n");
        shared.PlayerName = {"Ann", "Bob"};
        shared.RoundsWon = {3, 2};
        shared.TotalKills = {101, 122};  // 33 + 21 and 40 + 14: a tie of 54
        shared.RoundShots = {1, 0};
        shared.Winner = 1;
    }

    Log log;
    HandSetClock clock;
    ScriptedRandom random{{}, 0};
    RecordingSounds sounds{log};
    QueuedBoxes boxes{log};
    StringTable strings;
    SummaryPorts ports{clock, random, sounds, boxes, strings, file};
};

TEST_F(SummaryTest, OfARoundRecordsNothing) {
    const std::string list = record("Ann", kNew) + record("Bob", kNew);
    put(list);
    Summary summary{shared, SummaryKind::Round, ports};
    summary.Form_Activate();
    EXPECT_EQ(summary.heading(), "Ann wins this Round!");
    EXPECT_EQ(summary.labelComputerSays(), "one");
    EXPECT_EQ(summary.labelDateTime(), "01/01/70 - 12:00am");
    summary.cmdOkay_Click();
    EXPECT_EQ(bytes(), list);
    EXPECT_TRUE(log.empty());
}

TEST_F(SummaryTest, OfASetDecidesAndRecordsIt) {
    put(record("Ann", kNew) + record("Bob", kNew));
    shared.SetOver = true;
    shared.SelfHit = true;
    boxes.answers = {BoxAnswer::Ok};
    Summary summary{shared, SummaryKind::Set, ports};
    summary.Form_Activate();
    EXPECT_EQ(summary.heading(), "Bob wins this Set!");
    EXPECT_EQ(summary.labelComputerSays(), "set");
    summary.cmdOkay_Click();
    EXPECT_EQ(bytes(),
              record("Bob", "\1\0\1\0\x37\0\1\0\0"s) + record("Ann", "\1\0\0\0\x37\0\2\0\0"s));
    EXPECT_EQ(log, (Log{"sound set", "box Players Update"}));
    EXPECT_EQ(boxes.shown[0].find("Players Update: Ann & Bob--\r\nYour overall rating"), 0U);
    put(record("Bob", kNew));
    summary.cmdOkay_Click();  // no box about a list of one
    EXPECT_EQ(bytes(), record("Bob", "\1\0\1\0\x37\0\0\0\0"s));
}

struct Commentary : testing::Test {
    Commentary() { strings.addLines(bytesOf(SKYLOB_RESOURCES "/strings/commentary.txt")); }

    std::optional<std::string> draw(double r) {
        ScriptedRandom random{{r}};
        return drawRemark(shared, strings, random);
    }
    /// The block that fits goes from the one remark to the other, and every number in it has one.
    void expectBlock(const std::string& first, const std::string& last, int size) {
        EXPECT_EQ(draw(0), first);
        EXPECT_EQ(draw(0.9999999), last);
        for (int i = 0; i < size; ++i) EXPECT_NE(draw((i + 0.5) / size), "");
    }

    basSkylob shared;
    StringTable strings;
};

TEST_F(Commentary, FitsTheWinnerAndTheShots) {
    shared.PlayerName = {"Ann", "Bob"};
    shared.Winner = 2;
    shared.RoundShots = {9, 0};
    ScriptedRandom none{{}};
    EXPECT_EQ(drawRemark(shared, strings, none), std::nullopt);
    shared.RoundShots[2] = 1;
    expectBlock("Wow! Home run!", "Well, sizzle my CPU!", 14);
    shared.RoundShots[2] = 2;
    expectBlock("Well, you're just REALLY hot, huh?", "The blood is everywhere!", 19);
    shared.RoundShots[2] = 3;
    expectBlock("I'm looking for psychological significance here...",
                "C'mon, now... you can get better use out of my CPU than this!", 22);
    shared.RoundShots[2] = 4;
    expectBlock("I know a lobotomy patient who plays like you...",
                "I've seen snails with better trigger fingers...", 23);
    shared.PlayerName[2] = "Computer";
    expectBlock("Man, am I hot or WHAT?!", "Are you seeking philosophical wisdom through failure?",
                35);
    shared.Winner = 1;
    expectBlock("Well, I felt sorry for you, so...",
                "Careful! Don't get too big for your britches!", 20);
    shared.SelfHit = true;
    expectBlock("You just shot yourself. (Thought you'd want to know...)",
                "Take some medication and chill out!", 24);
    shared.SetOver = true;
    expectBlock("Good set, you guys!", "Don't you want to play one more set?", 12);
}

}  // namespace
}  // namespace skylob::test
