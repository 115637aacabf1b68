#include <gtest/gtest.h>

#include "app/SingleCopy.h"
#include "tests/support/Fakes.h"
#include "tests/support/FileFakes.h"

namespace skylob::test {

struct StartUpTest : testing::Test {
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

TEST_F(StartUpTest, TellsASecondCopyFromTheFirstUntilThatIsReleased) {
    setenv("XDG_RUNTIME_DIR", (folder / "").c_str(), 1);
    SingleCopy first;
    for (const Copies expected : {Copies::AnotherOne, Copies::ThisOne}) {
        EXPECT_EQ(SingleCopy{}.copies(), expected);
        first.release();
    }
}

}  // namespace skylob::test
