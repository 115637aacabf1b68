#include "players/Summary.h"

#include <gtest/gtest.h>

#include "tests/support/Fakes.h"
#include "tests/support/FileFakes.h"

namespace skylob::test {

namespace {

using namespace std::chrono;

const std::string kNew(9, '\0');

TEST(DateTimeText, IsTheSameEverywhere) {
    const auto at = [](sys_days day, milliseconds time) {
        return dateTimeText(DateTime{day.time_since_epoch() + time});
    };
    EXPECT_EQ(at(2026y / 11 / 21, 21h + 41min + 59s), "11/21/26 - 9:41pm");
    EXPECT_EQ(at(2009y / 1 / 2, 0h + 5min), "01/02/09 - 12:05am");
    EXPECT_EQ(at(2000y / 12 / 31, 12h), "12/31/00 - 12:00pm");
    EXPECT_EQ(at(2099y / 10 / 10, 11h + 59min), "10/10/99 - 11:59am");
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

struct SummaryTest : testing::Test {
    SummaryTest() {
        strings.addLines("2000 self\n2023 self\n2300 one\n2313 one\n2700 set\n2711 set\n");
        shared.PlayerName = {"Ann", "Bob"};
        shared.RoundsWon = {3, 2};
        shared.TotalKills = {101, 122};  // 33 + 21 and 40 + 14: a tie of 54
        shared.RoundShots = {1, 0};
        shared.Winner = 1;
    }

    Log log;
    TempFolder folder;
    std::string path = folder / "Skylob.Data";
    DiskFiles disk;
    PlayerFile file{disk, path};
    basSkylob shared;
    HandSetClock clock;
    ScriptedRandom random{{}, 0};
    RecordingSounds sounds{log};
    QueuedBoxes boxes{log};
    StringTable strings;
    SummaryPorts ports{clock, random, sounds, boxes, strings, file};
};

TEST_F(SummaryTest, OfARoundRecordsNothing) {
    putBytes(path, record("Ann", kNew) + record("Bob", kNew));
    Summary summary{shared, SummaryKind::Round, ports};
    summary.Form_Activate();
    EXPECT_EQ(summary.heading(), "Ann wins this Round!");
    EXPECT_EQ(summary.labelComputerSays(), "one");
    EXPECT_EQ(summary.labelDateTime(), "01/01/70 - 12:00am");
    summary.cmdOkay_Click();
    EXPECT_EQ(bytesOf(path), record("Ann", kNew) + record("Bob", kNew));
    EXPECT_TRUE(log.empty());
}

TEST_F(SummaryTest, OfASetDecidesAndRecordsIt) {
    putBytes(path, record("Ann", kNew) + record("Bob", kNew));
    shared.SetOver = true;
    shared.SelfHit = true;
    boxes.answers = {BoxAnswer::Ok};
    Summary summary{shared, SummaryKind::Set, ports};
    summary.Form_Activate();
    EXPECT_EQ(summary.heading(), "Bob wins this Set!");
    EXPECT_EQ(summary.labelComputerSays(), "set");
    summary.cmdOkay_Click();
    using namespace std::string_literals;
    EXPECT_EQ(bytesOf(path),
              record("Bob", "\1\0\1\0\x37\0\1\0\0"s) + record("Ann", "\1\0\0\0\x37\0\2\0\0"s));
    EXPECT_EQ(log, (Log{"sound set", "box Players Update"}));
    EXPECT_EQ(boxes.shown[0].text,
              "Ann & Bob--\r\nYour overall rating and standing among other players\r\nhave been "
              "updated and recorded in the Player List.");
}

TEST_F(SummaryTest, OfASetKeepsQuietAboutAListOfOne) {
    putBytes(path, record("Bob", kNew));
    shared.SetOver = true;
    Summary summary{shared, SummaryKind::Set, ports};
    summary.Form_Activate();
    summary.cmdOkay_Click();
    EXPECT_EQ(log, Log{"sound set"});
}

}  // namespace

}  // namespace skylob::test
