#include <gtest/gtest.h>

#include "app/Main.h"
#include "app/TitlePage.h"
#include "tests/support/Fakes.h"
#include "tests/support/FileFakes.h"

namespace skylob::test {

namespace {

class StartUpTest : public testing::Test {
  protected:
    StartUpTest() {
        shared.PlayerFileName = folder / "Skylob.Data";
        shared.OldDataFile = folder / "Skylob.Dat";
    }

    bool start(Copies copies = Copies::ThisOne) { return Main(shared, copies, files, boxes); }

    Log log;
    TempFolder folder;
    FailingFiles files;
    QueuedBoxes boxes{log};
    basSkylob shared;
};

TEST_F(StartUpTest, TakesAnOldFileOverUnlessThereIsAPresentOne) {
    EXPECT_TRUE(start());
    EXPECT_EQ(folder.content(), "");
    putBytes(shared.OldDataFile, "old");
    files.failing = "replace Skylob.Data";
    EXPECT_THROW(start(), FileError);
    files.failing.clear();
    EXPECT_TRUE(start());
    EXPECT_EQ(folder.content(), "Skylob.Data ");
    EXPECT_EQ(bytesOf(shared.PlayerFileName), "old");
    putBytes(shared.OldDataFile, "stale");
    EXPECT_TRUE(start());
    EXPECT_EQ(bytesOf(shared.PlayerFileName), "old");
    EXPECT_EQ(bytesOf(shared.OldDataFile), "stale");
}

TEST_F(StartUpTest, RefusesASecondCopyBeforeItTouchesAnything) {
    putBytes(shared.OldDataFile, "old");
    boxes.answers = {BoxAnswer::Ok};
    EXPECT_FALSE(start(Copies::AnotherOne));
    EXPECT_EQ(folder.content(), "Skylob.Dat ");
    EXPECT_EQ(boxes.shown, Log{"Terminating...: Skylob is already loaded\r\n"
                               "and running on your computer! (!)"});
}

TEST(TitlePage, GreetsInTheFirstTwentySecondsOfAMinute) {
    HandSetClock clock;
    Log log;
    RecordingSounds sounds{log};
    for (const int second : {0, 9, 10, 19, 20, 59}) {
        clock.time = DateTime{std::chrono::minutes{7} + std::chrono::seconds{second}};
        title::greet(clock, sounds);
    }
    EXPECT_EQ(log, (Log{"sound whatsup", "sound whatsup", "sound daffy", "sound daffy"}));
}

TEST(TitlePage, LeavesOutThePartsOfTheVersionThatAreZero) {
    EXPECT_EQ(title::versionLabel("3.78.14"), "Version w3.78.14");
    EXPECT_EQ(title::versionLabel("1.0.10"), "Version w1..10");
    EXPECT_EQ(title::versionLabel("2.0.0"), "Version w2..");
}

}  // namespace

}  // namespace skylob::test
