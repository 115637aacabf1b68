#include <gtest/gtest.h>

#include "base/Settings.h"
#include "tests/support/Fakes.h"

namespace skylob::test {

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

}  // namespace skylob::test
