#include "title/TitlePage.h"

#include <gtest/gtest.h>

#include "tests/support/Fakes.h"

namespace skylob::test {

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

}  // namespace skylob::test
