#include "players/Summary.h"

#include <gtest/gtest.h>

#include "players/Commentary.h"
#include "tests/support/Fakes.h"
#include "tests/support/PlayersRig.h"

namespace skylob::test {

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
    /// The last remark of the block that fits, which has this first one and so many of them.
    std::string block(const std::string& first, int size) {
        EXPECT_EQ(draw(0), first);
        for (int i = 0; i < size; ++i) EXPECT_NE(draw((i + 0.5) / size), "");
        return draw(0.9999999).value();
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
    EXPECT_EQ(block("Wow! Home run!", 14), "Well, sizzle my CPU!");
    shared.RoundShots[2] = 2;
    EXPECT_EQ(block("Well, you're just REALLY hot, huh?", 19), "The blood is everywhere!");
    shared.RoundShots[2] = 3;
    EXPECT_EQ(block("I'm looking for psychological significance here...", 22),
              "C'mon, now... you can get better use out of my CPU than this!");
    shared.RoundShots[2] = 4;
    EXPECT_EQ(block("I know a lobotomy patient who plays like you...", 23),
              "I've seen snails with better trigger fingers...");
    shared.PlayerName[2] = "Computer";
    EXPECT_EQ(block("Man, am I hot or WHAT?!", 35),
              "Are you seeking philosophical wisdom through failure?");
    shared.Winner = 1;
    EXPECT_EQ(block("Well, I felt sorry for you, so...", 20),
              "Careful! Don't get too big for your britches!");
    shared.SelfHit = true;
    EXPECT_EQ(block("You just shot yourself. (Thought you'd want to know...)", 24),
              "Take some medication and chill out!");
    shared.SetOver = true;
    EXPECT_EQ(block("Good set, you guys!", 12), "Don't you want to play one more set?");
}

}  // namespace skylob::test
